#include "lsp/features/Values.h"

#include <algorithm>

#include "base/RuntimeError.h"
#include "cli/files/Splices.h"
#include "cli/look/Conversion.h"
#include "cli/look/ItemRows.h"
#include "cli/look/NewValue.h"
#include "converter/Converter.h"
#include "language/Definitions.h"
#include "settings/ItemTables.h"
#include "text/LineEnds.h"
#include "text/SafeText.h"
#include "text/TextSearch.h"

namespace tessel::lsp {
namespace {

using language::Definition;

/// The value that the template of the document's dialect has for a name; empty where it has none.
std::string TemplateValue(const Session& session, const Document& document, std::string_view name) {
  const bool newer = FindText(document.Bytes(), kOnlyInConverted, 0, std::ssize(document.Bytes()),
                              kFindDefault) != kNotFound;
  const std::string& model = newer ? session.known.newerTemplate : session.known.olderTemplate;
  const language::Script script(model);
  const std::vector<Definition> found = language::DefinitionsOf(script, name);
  return found.size() == 1 ? std::string(script.Text(found.front().value)) : std::string();
}

std::vector<std::string> NearestPresets(std::int32_t number) {
  std::vector<std::string> nearest;
  std::optional<std::string> below;
  for (const std::string& preset : PresetValues()) {
    const std::int32_t value = language::NumberOf(preset).value_or(0);
    if (value < number) below = preset;
    if (value > number) {
      nearest.push_back(preset);
      break;
    }
  }
  if (below) nearest.insert(nearest.begin(), *below);
  return nearest;
}

/// A define takes its whole line, so there is one at most.
std::optional<Definition> DefinitionInLine(const Document& document, Position offset) {
  const LineIndex& lines = document.Lines();
  const language::Range line = lines.LineIn(document.Bytes(), lines.LineOf(offset));
  for (const language::Mark mark : document.Script().MarksFrom(line.begin)) {
    if (mark.begin >= line.end) break;
    if (mark.keyword == language::Keyword::kDefine) {
      return language::ReadDefinition(document.Script(), mark);
    }
  }
  return std::nullopt;
}

/// An edit that puts the value in the place of the define's, if it can be there.
std::optional<Edit> Put(const Document& document, const Definition& define,
                        const cli::WantedItem& item, const std::string& value) try {
  const std::string_view old = document.Script().Text(define.value);
  const cli::Splice splice = {define.value, cli::CheckedValue(item, old, value)};
  if (splice.text == old) return std::nullopt;
  cli::RefuseToRunIntoTheRest(document.Bytes(), splice, item);
  return Edit{splice.range, ToUtf8(splice.text)};
} catch (const RuntimeError&) {
  return std::nullopt;
}

}  // namespace

Edit SetValue(const Document& document, const std::string& item, const std::string& value,
              std::optional<std::int64_t> line) {
  const std::string file = NameOf(document);
  cli::ValueLook look(document.Bytes());
  const cli::WantedItem wanted = cli::ItemNamed(look, file, item);
  const cli::LookedAt looked = cli::ValueOf(look, file, wanted, line);
  const cli::Splice splice = {*looked.value,
                              cli::CheckedValue(wanted, look.TextOf(*looked.value), value)};
  cli::RefuseToRunIntoTheRest(document.Bytes(), splice, wanted);
  return {splice.range, ToUtf8(splice.text)};
}

std::vector<OfferedValue> ValuesFor(const Session& session, const Document& document,
                                    Position offset) {
  const auto define = DefinitionInLine(document, offset);
  if (!define || !define->IsComplete()) return {};
  if (!document.ForeignersIn({define->keyword.begin, define->end}).empty()) return {};
  const std::string name(document.Script().Text(define->name));
  const cli::WantedItem item = {FindPanelItem(name), name, name};
  std::vector<OfferedValue> offered;
  const auto offer = [&](const std::string& value, const char* why) {
    const bool isNew = std::ranges::find(offered, value, &OfferedValue::value) == offered.end();
    if (auto edit = isNew && !value.empty() ? Put(document, *define, item, value) : std::nullopt) {
      offered.push_back({ToUtf8(name), value, why, std::move(*edit)});
    }
  };
  offer(TemplateValue(session, document, name), "as in the template");
  if (item.panel && item.panel->entry < 0) {
    for (const char* answer : {"YES", "NO"}) offer(answer, "");
  } else if (define->number) {
    for (const std::string& preset : NearestPresets(*define->number)) offer(preset, "");
  }
  return offered;
}

std::vector<Edit> ConversionOf(const Document& document) {
  if (!document.Foreigners().empty()) {
    throw RuntimeError("The text has characters that a CON file cannot hold.");
  }
  std::string converted = cli::ConvertText(document.Bytes()).text;
  if (const auto own = LineEndsOf(document.Bytes()).Only()) {
    converted = WithLineEnds(converted, *own);
  }
  return EditsBetween(document.Bytes(), converted);
}

}  // namespace tessel::lsp
