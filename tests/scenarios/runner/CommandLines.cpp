#include "CommandLines.h"

#include <algorithm>
#include <array>

#include "Sentence.h"

namespace scenario {
namespace {

constexpr Phrase kNamedControl{"", "control", Says::kControl};
constexpr Phrase kNamedEditor{"editor", "index", Says::kValue};
constexpr Phrase kNumber{"", "entry", Says::kValue};
constexpr Phrase kQuoted{"", "text", Says::kText};

constexpr std::array kAnswer = {
    Phrase{"open cancelled", "open", Says::kNothing, "null"},
    Phrase{"open", "open", Says::kTexts},
    Phrase{"save cancelled", "save", Says::kNothing, "null"},
    Phrase{"save", "save", Says::kText},
    Phrase{"message", "message", Says::kWord},
};
constexpr std::array kCall = {Phrase{"", "method", Says::kWord},
                              Phrase{"with", "args", Says::kTexts}};
constexpr std::array kClick = {kNamedControl, Phrase{"key", "key", Says::kWord},
                               Phrase{"tab", "tab", Says::kValue}};
constexpr std::array kControlOnly = {kNamedControl};
constexpr std::array kEditorOnly = {kNamedEditor};
constexpr std::array kItem = {Phrase{"", "item", Says::kWord}};
constexpr std::array kKey = {Phrase{"", "code", Says::kKeys}};
constexpr std::array kMenu = {Phrase{"", "button", Says::kWord}, Phrase{"", "key", Says::kWord},
                              Phrase{"", "item", Says::kValue}};
constexpr std::array kMouse = {Phrase{"left", "button", Says::kNothing, "1"},
                               Phrase{"right", "button", Says::kNothing, "2"},
                               Phrase{"middle", "button", Says::kNothing, "4"}, kNamedEditor};
constexpr std::array kPress = {Phrase{"", "key", Says::kWord}};
constexpr std::array kSelect = {kNamedControl, kNumber};
constexpr std::array kSel = {kNamedEditor, Phrase{"", "start", Says::kValue},
                             Phrase{"", "length", Says::kValue}};
constexpr std::array kSize = {Phrase{"", "width", Says::kValue},
                              Phrase{"", "height", Says::kValue}};
constexpr std::array kStore = {Phrase{"", "section", Says::kWord},
                               Phrase{"set", "set", Says::kTexts},
                               Phrase{"delete", "delete", Says::kText}};
constexpr std::array kTextIn = {kNamedEditor, kQuoted};
constexpr std::array kTextOnly = {kQuoted};
constexpr std::array kType = {kNamedControl, kQuoted};

/// Of several for a command the first that can say it is written.
constexpr std::array kCommands = {
    Sentence{"answer", R"({"do":"answer"})", kAnswer},
    Sentence{"call", R"({"do":"call"})", kCall},
    Sentence{"press", R"({"do":"click","control":"tbToolBar"})", kPress},
    Sentence{"click", R"({"do":"click"})", kClick},
    Sentence{"clipboard", R"({"do":"clipboard"})", kTextOnly},
    Sentence{"colours", R"({"do":"colours"})", kEditorOnly},
    Sentence{"dblclick", R"({"do":"dblclick"})", kSelect},
    Sentence{"focus", R"({"do":"focus"})", kControlOnly},
    Sentence{"get", R"({"do":"get"})", kControlOnly},
    Sentence{"key", R"({"do":"key"})", kKey},
    Sentence{"load", R"({"do":"load"})", kTextIn},
    Sentence{"menu", R"({"do":"menu"})", kMenu},
    Sentence{"mouse", R"({"do":"mouse"})", kMouse},
    Sentence{"popup", R"({"do":"popup"})", kItem},
    Sentence{"quit", R"({"do":"quit"})", {}},
    Sentence{"resize", R"({"do":"resize"})", kSize},
    Sentence{"restart", R"({"do":"restart"})", {}},
    Sentence{"sel", R"({"do":"sel"})", kSel},
    Sentence{"select", R"({"do":"select"})", kSelect},
    Sentence{"state", R"({"do":"state"})", {}},
    Sentence{"store", R"({"do":"store"})", kStore},
    Sentence{"text", R"({"do":"text"})", kEditorOnly},
    Sentence{"type", R"({"do":"type"})", kType},
};

/// Members in the same order, too.
bool IsReadAs(const std::string& line, const Json& command) {
  const auto read = CommandOf(line);
  return read && read->dump() == command.dump();
}

}  // namespace

std::optional<Json> CommandOf(std::string_view line) {
  Cursor rest(line);
  for (const Sentence& sentence : kCommands) {
    if (rest.Skip(sentence.words)) return ReadSentence(sentence, rest);
  }
  return std::nullopt;
}

std::optional<std::string> LineOf(const Json& command) {
  for (const auto write : {WriteSentence, WriteInBraces}) {
    for (const Sentence& sentence : kCommands) {
      const auto said = write(sentence, command);
      if (!said) continue;
      std::string line = std::string(sentence.words) + (said->empty() ? "" : " ") + *said;
      if (IsReadAs(line, command)) return line;
    }
  }
  return std::nullopt;
}

}  // namespace scenario
