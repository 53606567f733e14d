#include "language/Levels.h"

#include <array>
#include <utility>

#include "base/RuntimeError.h"
#include "cli/Subcommands.h"
#include "cli/files/Splices.h"
#include "cli/look/LevelName.h"
#include "cli/report/Suggestion.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using language::Level;
using language::Range;
using language::Script;

/// What a level line has to have, in its order.
struct Field {
  const char* name;
  Range Level::*range;
};
constexpr std::array<Field, 6> kFields = {{{"episode", &Level::episode},
                                           {"level", &Level::number},
                                           {"map", &Level::map},
                                           {"par", &Level::par},
                                           {"record", &Level::record},
                                           {"title", &Level::title}}};

std::string LevelText(const Script& script, const Level& level) {
  return ToUtf8(script.Text(level.episode)) + " " + ToUtf8(script.Text(level.number));
}

Position LineOf(const Script& script, const Level& level) {
  return script.PlaceOf(level.keyword.begin).line;
}

/// What keeps the line from being a whole level line, or nothing.
std::optional<std::string> ProblemOf(const Level& level) {
  for (const Field& field : kFields) {
    if ((level.*field.range).IsEmpty()) return std::string("it has no ") + field.name;
  }
  if (!level.IsComplete()) return "its episode or level is no number";
  return std::nullopt;
}

Row RowOf(const Script& script, const Level& level) {
  const auto cell = [&](Range range) { return ToUtf8(script.Text(range)); };
  return {LevelText(script, level), cell(level.map),   cell(level.par),
          cell(level.record),       cell(level.title), std::int64_t{LineOf(script, level)},
          CellOf(ProblemOf(level))};
}

const std::vector<std::string> kColumns = {"level", "map",  "par",    "record",
                                           "title", "line", "problem"};

const std::string& TextIn(const Row& row, std::size_t column) {
  return std::get<std::string>(row[column]);
}

std::string MapAndTitle(const Row& row) {
  return ForTerminal(TextIn(row, 1)) + '\t' + ForTerminal(TextIn(row, 4)) + '\n';
}

std::string LevelsAsText(const FileReport& report) {
  std::string text;
  for (const Row& row : report.rows) text += ForTerminal(TextIn(row, 0)) + '\t' + MapAndTitle(row);
  return text;
}

std::string OneAsText(const FileReport& report) { return MapAndTitle(report.rows.front()); }

std::string NotThere(const Script& script, const std::string& file, const std::string& wanted) {
  std::vector<std::string> names;
  for (const Level& level : language::Levels(script)) names.push_back(LevelText(script, level));
  const std::string guess = DidYouMean(wanted, names);
  return file + " has no level \"" + wanted + "\"." + (guess.empty() ? "" : " " + guess);
}

/// The only level line of that name; with a line, the one there.
Level FindLevel(const Script& script, const std::string& file, const LevelArguments& arguments) {
  const std::string wanted = TextOf(*ParseLevelName(arguments.level));
  const LevelName name = *ParseLevelName(wanted);
  std::vector<Level> levels = language::LevelsOf(script, name.episode, name.level);
  if (levels.empty()) throw RuntimeError(NotThere(script, file, wanted));
  if (arguments.line) {
    std::erase_if(levels,
                  [&](const Level& level) { return LineOf(script, level) != *arguments.line; });
    if (levels.empty()) {
      throw RuntimeError("Line " + std::to_string(*arguments.line) + " of " + file +
                         " is no line of level " + wanted + ".");
    }
  }
  if (levels.size() > 1) {
    throw RuntimeError(file + " has level " + wanted + " in the lines " +
                       std::to_string(LineOf(script, levels[0])) + " and " +
                       std::to_string(LineOf(script, levels[1])) + ": choose one with --line.");
  }
  if (const auto problem = ProblemOf(levels.front())) {
    throw RuntimeError("Line " + std::to_string(LineOf(script, levels.front())) + " of " + file +
                       " is no whole level line: " + *problem + ".");
  }
  return levels.front();
}

/// What is to stand in a field.
struct Change {
  const char* what;
  Range Level::*field;
  const std::optional<std::string>& text;
};

/// A level line with the change says exactly that, and everything else as before.
bool IsSaidBy(const std::string& line, const Script& script, const Level& level,
              const Change& change) {
  const Script changed(line);
  const std::vector<Level> levels = language::Levels(changed);
  if (levels.size() != 1 || !levels.front().IsComplete()) return false;
  for (const Field& field : kFields) {
    const std::string_view wanted = field.range == change.field ? std::string_view(*change.text)
                                                                : script.Text(level.*field.range);
    if (changed.Text(levels.front().*field.range) != wanted) return false;
  }
  return levels.front().lineEnd == std::ssize(line);
}

void RefuseWhatBreaksTheLine(const Script& script, const Level& level, const Change& change) {
  const Range line = {level.keyword.begin, level.title.end};
  const Range& field = level.*change.field;
  const std::string changed = Spliced(
      script.Text(line), {{{field.begin - line.begin, field.end - line.begin}, *change.text}});
  if (IsSaidBy(changed, script, level, change) &&
      LeavesTheRest(script.Text(), {field, *change.text})) {
    return;
  }
  throw RuntimeError("\"" + ToUtf8(*change.text) + "\" cannot be the " + change.what +
                     " of level " + LevelText(script, level) + ".");
}

std::string ChangeLevel(const Script& script, const LevelArguments& arguments, FileReport& report) {
  const Level level = FindLevel(script, report.file, arguments);
  const Change changes[] = {{"map", &Level::map, arguments.map},
                            {"title", &Level::title, arguments.title}};
  std::vector<Splice> splices;
  std::int64_t changed = 0;
  for (const Change& change : changes) {
    if (!change.text) continue;
    RefuseWhatBreaksTheLine(script, level, change);
    const std::string_view old = script.Text(level.*change.field);
    report.rows.push_back({LevelText(script, level), std::string(change.what), ToUtf8(old),
                           ToUtf8(*change.text), std::int64_t{LineOf(script, level)}});
    if (old != *change.text) ++changed;
    splices.push_back({level.*change.field, *change.text});
  }
  report.facts.emplace_back(kChanged, changed);
  return Spliced(script.Text(), std::move(splices));
}

std::string FieldsAsText(const FileReport& report) {
  std::string text;
  for (const Row& row : report.rows) {
    text += TextIn(row, 1) + " of " + TextIn(row, 0) + ": " + ForTerminal(TextIn(row, 2)) + " -> " +
            ForTerminal(TextIn(row, 3)) + '\n';
  }
  return text;
}

}  // namespace

bool ListLevels(const LookArguments& arguments) {
  const auto list = [](const std::string& bytes, FileReport& report) {
    const Script script(bytes);
    for (const Level& level : language::Levels(script)) {
      report.rows.push_back(RowOf(script, level));
    }
  };
  return LookAtFiles(arguments, {.command = "levels", .columns = kColumns}, list, LevelsAsText);
}

bool ShowLevel(const LevelArguments& arguments) {
  const auto show = [&](const std::string& bytes, FileReport& report) {
    const Script script(bytes);
    report.rows.push_back(RowOf(script, FindLevel(script, report.file, arguments)));
  };
  return LookAtFiles(arguments, {.command = "level", .columns = kColumns}, show, OneAsText);
}

bool ChangeLevel(const LevelArguments& arguments) {
  const auto change = [&](const std::string& bytes, FileReport& report) {
    return ChangeLevel(Script(bytes), arguments, report);
  };
  return EditFiles(arguments,
                   {.command = "level", .columns = {"level", "field", "old", "new", "line"}},
                   change, FieldsAsText);
}

}  // namespace tessel::cli
