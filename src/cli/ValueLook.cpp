#include "cli/ValueLook.h"

#include <algorithm>

#include "language/Statement.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using language::Definition;
using language::Range;

std::string InLine(std::int64_t line) { return "line " + std::to_string(line); }
std::string UseLine(std::int64_t line) { return "use --line " + std::to_string(line); }

}  // namespace

ValueLook::ValueLook(std::string_view bytes)
    : script_(bytes), definitions_(language::Definitions(script_)) {}

ValueLook::~ValueLook() = default;

std::optional<WantedItem> ValueLook::Find(const std::string& name) const {
  if (auto item = FindPanelItem(name)) return WantedItem{item, item->name, item->define};
  const auto bytes = FromTerminal(name);
  const auto defined = bytes ? DefinitionsOf(*bytes) : std::vector<Definition>();
  if (defined.empty()) return std::nullopt;
  const std::string define(TextOf(defined.front().name));
  return WantedItem{std::nullopt, ToUtf8(define), define};
}

std::vector<std::string> ValueLook::Names() const {
  std::vector<std::string> names;
  for (const PanelItem& item : PanelItems()) {
    names.push_back(item.name);
    names.push_back(item.define);
  }
  for (const Definition& definition : definitions_)
    names.push_back(ToUtf8(TextOf(definition.name)));
  std::ranges::sort(names);
  const auto repeated = std::ranges::unique(names);
  names.erase(repeated.begin(), repeated.end());
  return names;
}

std::vector<Definition> ValueLook::DefinitionsOf(const std::string& name) const {
  std::vector<Definition> found;
  std::ranges::copy_if(definitions_, std::back_inserter(found), [&](const Definition& definition) {
    return language::SameName(TextOf(definition.name), name);
  });
  return found;
}

std::vector<Definition> ValueLook::DefinitionsOf(const WantedItem& item) const {
  std::vector<Definition> found = DefinitionsOf(item.define);
  if (!found.empty() || !item.panel || !item.panel->byBeginning) return found;
  std::ranges::copy_if(definitions_, std::back_inserter(found), [&](const Definition& definition) {
    return language::SameName(TextOf(definition.name).substr(0, item.define.size()), item.define);
  });
  return found;
}

std::optional<Range> ValueLook::ShownByPanel(const PanelItem& item) {
  if (!panel_) {
    panel_ = std::make_unique<DocumentSession>();
    panel_->Show(std::string(script_.Text()));
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

/// The value of a define that has one, and nothing more.
LookedAt ValueLook::OnlyComplete(const Definition& definition) const {
  const std::int64_t line = LineOf(definition.keyword.begin);
  const std::string name = ToUtf8(TextOf(definition.name));
  if (!definition.HasValue())
    return {{}, line, {}, InLine(line) + " defines " + name + " without a value"};
  if (!definition.rest.IsEmpty()) {
    return {{}, line, {}, InLine(line) + " has more than one value for " + name};
  }
  return {definition.value, line, name, {}};
}

/// Why the panel's hit is no value.
LookedAt ValueLook::NotShown(const std::vector<Definition>& definitions,
                             const std::optional<Range>& shown) const {
  if (definitions.empty()) {
    if (!shown) return {};
    const std::int64_t line = LineOf(shown->begin);
    return {{}, line, {}, InLine(line) + WhatIsAt(shown->begin) + "; there is no define line"};
  }
  const Definition& definition = definitions.front();
  const std::int64_t line = LineOf(definition.keyword.begin);
  if (!shown)
    return {{}, line, {}, InLine(line) + " is one that the panel does not find: " + UseLine(line)};
  const std::int64_t hit = LineOf(shown->begin);
  if (hit != line) {
    return {{},
            line,
            {},
            InLine(hit) + WhatIsAt(shown->begin) + "; the define is in " + InLine(line) + ": " +
                UseLine(line)};
  }
  const char* reason = definition.hasTab
                           ? " has a tab, which the panel takes for part of the value: "
                           : " is read by the panel otherwise: ";
  return {{}, line, {}, InLine(line) + reason + UseLine(line)};
}

LookedAt ValueLook::LookAt(const WantedItem& item) {
  const std::vector<Definition> definitions = DefinitionsOf(item);
  if (definitions.size() > 1) {
    const std::int64_t first = LineOf(definitions[0].keyword.begin);
    const std::int64_t second = LineOf(definitions[1].keyword.begin);
    return {{},
            first,
            {},
            "it is defined in " + InLine(first) + " and again in " + InLine(second) +
                ": say which, with --line"};
  }
  if (!item.panel) return OnlyComplete(definitions.front());
  const auto shown = ShownByPanel(*item.panel);
  if (definitions.size() == 1) {
    LookedAt looked = OnlyComplete(definitions.front());
    if (!looked.value || looked.value == shown) return looked;
  }
  return NotShown(definitions, shown);
}

LookedAt ValueLook::LookAtLine(const WantedItem& item, std::int64_t line) const {
  for (const Definition& definition : DefinitionsOf(item)) {
    if (LineOf(definition.keyword.begin) == line) return OnlyComplete(definition);
  }
  return {{}, line, {}, InLine(line) + " does not define " + ToUtf8(item.define)};
}

}  // namespace tessel::cli
