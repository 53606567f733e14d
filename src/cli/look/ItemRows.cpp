#include "cli/look/ItemRows.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

#include "base/RuntimeError.h"
#include "cli/report/Suggestion.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

Cell SectionOf(const WantedItem& item) {
  return item.panel ? Cell(item.panel->section) : Cell(nullptr);
}

Cell DefineCell(const WantedItem& item, const LookedAt& looked) {
  return looked.name.value_or(ToUtf8(item.define));
}

Cell LineCell(const LookedAt& looked) { return looked.line ? Cell(*looked.line) : Cell(nullptr); }

Cell TextCell(const std::string& text) { return text.empty() ? Cell(nullptr) : Cell(text); }

Cell ValueCell(const ValueLook& look, const LookedAt& looked) {
  return looked.value ? Cell(ToUtf8(look.TextOf(*looked.value))) : Cell(nullptr);
}

// Places in kChangeColumns.
constexpr std::size_t kItemCell = 1, kOldCell = 4, kNewCell = 5, kProblemCell = 6;

std::string TextOr(const Cell& cell, const char* otherwise) {
  const auto* text = std::get_if<std::string>(&cell);
  return text == nullptr ? otherwise : ForTerminal(*text);
}

}  // namespace

const std::vector<std::string> kValueColumns = {"section", "item", "define",
                                                "value",   "line", "problem"};

const std::vector<std::string> kChangeColumns = {"section", "item", "define", "line",
                                                 "old",     "new",  "problem"};

Row ValueRow(const ValueLook& look, const WantedItem& item, const LookedAt& looked) {
  return {SectionOf(item),         item.name,        DefineCell(item, looked),
          ValueCell(look, looked), LineCell(looked), TextCell(looked.problem)};
}

Row ChangeRow(const ValueLook& look, const WantedItem& item, const LookedAt& looked,
              const std::optional<std::string>& fresh) {
  return {SectionOf(item),          item.name,
          DefineCell(item, looked), LineCell(looked),
          ValueCell(look, looked),  fresh ? Cell(ToUtf8(*fresh)) : Cell(nullptr),
          TextCell(looked.problem)};
}

std::int64_t CountChanges(const std::vector<Row>& rows) {
  return std::ranges::count_if(rows, [](const Row& row) {
    return !std::holds_alternative<std::nullptr_t>(row[kNewCell]) && row[kNewCell] != row[kOldCell];
  });
}

std::string ChangesAsText(const std::vector<Row>& rows) {
  std::ostringstream text;
  for (const Row& row : rows) {
    text << std::left << std::setw(34) << TextOr(row[kItemCell], "") << std::right << std::setw(8)
         << TextOr(row[kOldCell], "-") << " -> " << std::setw(8) << TextOr(row[kNewCell], "-");
    const std::string problem = TextOr(row[kProblemCell], "");
    if (!problem.empty()) text << "  (" << problem << ')';
    text << '\n';
  }
  return text.str();
}

std::vector<WantedItem> ItemsOf(const std::string& section) {
  std::vector<WantedItem> items;
  for (const PanelItem& item : PanelItems()) {
    if (!section.empty() && section != "All" && item.section != section) continue;
    items.push_back({item, item.name, item.define});
  }
  return items;
}

WantedItem ItemNamed(const ValueLook& look, const std::string& file, const std::string& name) {
  if (auto item = look.Find(name)) return *item;
  const std::string guess = DidYouMean(name, look.Names());
  throw RuntimeError("There is no setting \"" + name + "\", and " + file +
                     " defines no such name." + (guess.empty() ? "" : " " + guess));
}

LookedAt ValueOf(ValueLook& look, const std::string& file, const WantedItem& item,
                 const std::optional<std::int64_t>& line) {
  LookedAt looked = line ? look.LookAtLine(item, *line) : look.LookAt(item);
  if (looked.value) return looked;
  if (looked.problem.empty()) {
    throw RuntimeError(file + " does not define " + ToUtf8(item.define) + ".");
  }
  throw RuntimeError(file + ": " + item.name + ": " + looked.problem + ".");
}

}  // namespace tessel::cli
