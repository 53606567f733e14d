#include "cli/look/ValueLook.h"

#include <algorithm>

#include "language/Statement.h"
#include "text/SafeText.h"
#include "text/TextSearch.h"

namespace tessel::cli {
namespace {

using language::Definition;
using language::Range;

bool IsBrace(std::string_view word) { return word == "{" || word == "}"; }

std::string InLine(std::int64_t line) { return "line " + std::to_string(line); }
std::string UseLine(std::int64_t line) { return "use --line " + std::to_string(line); }

}  // namespace

ValueLook::ValueLook(std::string_view bytes) : script_(bytes), index_(script_) {}

ValueLook::~ValueLook() = default;

std::optional<WantedItem> ValueLook::Find(const std::string& name) const {
  if (auto item = FindPanelItem(name)) return WantedItem{item, item->name, item->define};
  const auto bytes = FromTerminal(name);
  const auto defined = bytes ? index_.Of(*bytes) : std::vector<Definition>();
  if (defined.empty()) return std::nullopt;
  const std::string define(TextOf(defined.front().name));
  return WantedItem{std::nullopt, ToUtf8(define), define};
}

std::vector<std::string> ValueLook::Names() const {
  std::vector<std::string> names = index_.Names();
  for (const PanelItem& item : PanelItems()) {
    names.push_back(item.name);
    names.push_back(item.define);
  }
  std::ranges::sort(names);
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

std::vector<Definition> ValueLook::DefinitionsOf(const WantedItem& item) const {
  std::vector<Definition> found = index_.Of(item.define);
  const bool byBeginning = item.panel && item.panel->byBeginning;
  return found.empty() && byBeginning ? index_.Beginning(item.define) : found;
}

std::optional<Range> ValueLook::ShownByPanel(const PanelItem& item, Position end) {
  if (!panel_) panel_ = std::make_unique<DocumentSession>();
  if (end > panelEnd_) {
    // Lines end with LF for the panel. So much more each time keeps the whole work small.
    const std::string_view text = script_.Text();
    const auto wanted = std::min(text.size(), static_cast<std::size_t>(end + panelEnd_));
    const std::size_t length = std::min(text.find('\n', wanted), text.size() - 1) + 1;
    panel_->Show(std::string(text.substr(0, length)));
    panelEnd_ = static_cast<Position>(length);
  }
  if (!ReadItem(*panel_, item)) return std::nullopt;
  const RichTextBox& editor = panel_->Editor();
  return Range{editor.SelStart(), editor.SelEnd()};
}

std::string ValueLook::WhatIsAt(Position offset) const {
  if (script_.IsInComment(offset)) return " is a comment";
  if (const auto definition = language::DefinitionAt(script_, offset)) {
    return " defines " + ToUtf8(TextOf(definition->name));
  }
  if (const auto statement = language::StatementAt(script_, offset)) {
    return " is part of \"" + ToUtf8(TextOf(statement->keywordRange)) + "\"";
  }
  return " is no define";
}

/// The list whose words stand in front of the keyword in its line, if any.
std::optional<std::string> ValueLook::ListInFrontOf(const Definition& definition) const {
  const Position begin = definition.keyword.begin;
  const auto mark = begin == 0 ? std::nullopt : script_.LastMarkUpTo(begin - 1);
  if (!mark || language::GrammarOf(mark->keyword).form != language::Form::kList) {
    return std::nullopt;
  }
  const language::Statement list = language::ReadStatement(script_, *mark);
  if (LineOf(list.range.end) != LineOf(begin)) return std::nullopt;
  return ToUtf8(TextOf(list.keywordRange));
}

/// The value of a define that has one, and nothing more.
LookedAt ValueLook::OnlyComplete(const Definition& definition) const {
  const std::int64_t line = LineOf(definition.keyword.begin);
  const std::string name = ToUtf8(TextOf(definition.name));
  if (const auto list = ListInFrontOf(definition)) {
    return {{}, line, {}, InLine(line) + " is part of \"" + *list + "\""};
  }
  if (!definition.HasValue() || IsBrace(TextOf(definition.value))) {
    return {{}, line, {}, InLine(line) + " defines " + name + " without a value"};
  }
  if (!definition.rest.IsEmpty()) {
    return {{}, line, {}, InLine(line) + " has more than one value for " + name};
  }
  return {definition.value, line, name, {}};
}

/// What stands at a name that is nowhere defined.
LookedAt ValueLook::OnlyMentioned(const std::string& name) const {
  const Position at = FindText(script_.Text(), name, 0, script_.Length(), kFindWholeWord);
  if (at == kNotFound) return {};
  const std::int64_t line = LineOf(at);
  return {{}, line, {}, InLine(line) + WhatIsAt(at) + "; there is no define line"};
}

/// Why the panel's hit is not the define's value.
LookedAt ValueLook::NotShown(const Definition& definition,
                             const std::optional<Range>& shown) const {
  const std::int64_t line = LineOf(definition.keyword.begin);
  const std::int64_t hit = shown ? LineOf(shown->begin) : line;
  std::string reason;
  if (!shown) {
    reason = InLine(line) + " is one that the panel does not find: ";
  } else if (hit != line) {
    reason = InLine(hit) + WhatIsAt(shown->begin) + "; the define is in " + InLine(line) + ": ";
  } else if (definition.hasTab) {
    reason = InLine(line) + " has a tab, which the panel takes for part of the value: ";
  } else {
    reason = InLine(line) + " is read by the panel otherwise: ";
  }
  return {{}, line, {}, reason + UseLine(line)};
}

LookedAt ValueLook::LookAt(const WantedItem& item) {
  const std::vector<Definition> definitions = DefinitionsOf(item);
  if (definitions.empty()) return OnlyMentioned(item.define);
  if (definitions.size() > 1) {
    const std::int64_t first = LineOf(definitions[0].keyword.begin);
    const std::int64_t second = LineOf(definitions[1].keyword.begin);
    return {{},
            first,
            {},
            "it is defined in " + InLine(first) + " and again in " + InLine(second) +
                ": choose one with --line"};
  }
  const Definition& definition = definitions.front();
  LookedAt looked = OnlyComplete(definition);
  if (!looked.value || !item.panel) return looked;
  const auto shown = ShownByPanel(*item.panel, definition.end);
  return looked.value == shown ? looked : NotShown(definition, shown);
}

LookedAt ValueLook::LookAtLine(const WantedItem& item, std::int64_t line) const {
  for (const Definition& definition : DefinitionsOf(item)) {
    if (LineOf(definition.keyword.begin) == line) return OnlyComplete(definition);
  }
  return {{}, line, {}, InLine(line) + " does not define " + ToUtf8(item.define)};
}

}  // namespace tessel::cli
