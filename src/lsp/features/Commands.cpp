// What the client has the server do: it answers with an edit that the client is to apply.
#include <array>
#include <optional>

#include "lsp/features/Features.h"
#include "lsp/features/Values.h"
#include "text/SafeText.h"

namespace tessel::lsp {
namespace {

const std::string& TextArgument(const Json& arguments, std::size_t index, const char* what) {
  const Json* argument = index < arguments.size() ? &arguments[index] : nullptr;
  if (argument == nullptr || !argument->is_string()) {
    throw ResponseError(ErrorCode::kInvalidParams,
                        "Argument " + std::to_string(index + 1) + " has to be " + what + ".");
  }
  return argument->get_ref<const std::string&>();
}

Document& DocumentOf(Session& session, const Json& arguments) {
  const std::string& uri = TextArgument(arguments, 0, "the URI of a document");
  if (Document* document = session.workspace.Find(uri)) return *document;
  throw ResponseError(ErrorCode::kInvalidParams, "No such document is open: " + uri);
}

std::string SingleByte(const std::string& utf8) {
  if (auto bytes = FromTerminal(utf8)) return *bytes;
  throw ResponseError(ErrorCode::kInvalidParams,
                      "\"" + utf8 + "\" has a character that a CON file cannot hold.");
}

void Apply(Session& session, const Document& document, std::vector<Edit> edits,
           const std::string& label) {
  if (edits.empty()) return;
  if (!session.client.appliesEdits) {
    throw ResponseError(ErrorCode::kRequestFailed, "The editor does not apply edits.");
  }
  session.Request(
      "workspace/applyEdit",
      {{"label", label}, {"edit", WorkspaceEdit(session, {{&document, std::move(edits)}})}});
}

void Convert(Session& session, const Json& arguments) {
  const Document& document = DocumentOf(session, arguments);
  Apply(session, document, ConversionOf(document), "Convert to 1.4/1.5");
}

std::optional<std::int64_t> LineArgument(const Json& arguments) {
  constexpr std::size_t kLine = 3;
  if (arguments.size() <= kLine || arguments[kLine].is_null()) return std::nullopt;
  if (arguments[kLine].is_number_integer()) return arguments[kLine].get<std::int64_t>();
  throw ResponseError(ErrorCode::kInvalidParams, "Argument 4 has to be a line, from 1.");
}

void SetOneValue(Session& session, const Json& arguments) {
  const Document& document = DocumentOf(session, arguments);
  const std::string item = SingleByte(TextArgument(arguments, 1, "an item or a name"));
  const std::string value = SingleByte(TextArgument(arguments, 2, "a value, as a text"));
  Apply(session, document, {SetValue(document, item, value, LineArgument(arguments))},
        "Set value of " + ToUtf8(item));
}

struct Command {
  std::string_view name;
  void (*run)(Session& session, const Json& arguments);
};
constexpr std::array<Command, 2> kCommands = {
    {{kConvertCommand, Convert}, {kSetValueCommand, SetOneValue}}};

}  // namespace

std::string ExecuteCommand(Session& session, const Json& params) {
  const std::string& name = TextMember(params, "command");
  const Json* arguments = OptionalMember(params, "arguments");
  for (const Command& command : kCommands) {
    if (command.name != name) continue;
    command.run(session,
                arguments != nullptr && arguments->is_array() ? *arguments : Json::array());
    return "null";
  }
  throw ResponseError(ErrorCode::kInvalidParams, "There is no command \"" + name + "\".");
}

}  // namespace tessel::lsp
