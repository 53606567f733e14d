// Whatever is changed without making a mod worse, the check finds nothing.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <limits>
#include <string>
#include <vector>

#include "ModLines.h"
#include "Mods.h"
#include "text/Text.h"

namespace tessel::test {
namespace {

using Lines = std::vector<std::string>;
/// Changes one file; gives it up where the place that was drawn does not fit.
using Mutation = void (*)(Lines& lines, ModFile file, Dice& dice);

/// The conversion looks for some lines as they are.
bool IsSoughtByConversion(const std::string& line) {
  return std::ranges::any_of(VersionEdits(), [&](const VersionEdit& edit) {
    return ToUpperText(line).find(ToUpperText(edit.sought)) != std::string::npos;
  });
}

bool IsPlain(const Lines& lines, std::size_t index) {
  return !CommentedLines(lines)[index] && !IsSoughtByConversion(lines[index]);
}

bool Begins(const std::string& line, std::string_view begin) { return line.starts_with(begin); }

/// Where the value of a define line begins and ends.
struct Value {
  std::size_t begin, end;
};
Value ValueIn(const std::string& line) {
  const std::size_t name = line.find_first_not_of(' ', std::string_view("define").size());
  const std::size_t begin = line.find_first_not_of(' ', line.find(' ', name));
  return {begin, std::min(line.find_first_of(" \t/", begin), line.size())};
}

// --- The mutations

/// In the defs file two sounds would get one slot.
void ChangeValue(Lines& lines, ModFile file, Dice& dice) {
  const auto defines = LinesThatBegin(lines, "define ");
  if (file == kDefs || defines.empty()) return;
  std::string& line = lines[dice.Of(defines)];
  const Value value = ValueIn(line);
  const std::string old = line.substr(value.begin, value.end - value.begin);
  if (IsSoughtByConversion(line)) return;
  if (old == "YES" || old == "NO") {
    line.replace(value.begin, old.size(), dice.Likely(1, 2) ? "YES" : "NO");
    return;
  }
  const int numbers[] = {
      0, 1, -1, 77, 4321, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
  line.replace(value.begin, old.size(), std::to_string(dice.Of(numbers)));
}

void SwapWithNext(Lines& lines, ModFile, Dice& dice) {
  constexpr std::string_view kIndependent[] = {"define ", "definequote ", "definesound "};
  const auto& begin = dice.Of(kIndependent);
  const auto found = LinesThatBegin(lines, begin);
  if (found.empty()) return;
  const std::size_t at = dice.Of(found);
  if (at + 1 < lines.size() && Begins(lines[at + 1], begin)) std::swap(lines[at], lines[at + 1]);
}

void AddCommentLine(Lines& lines, ModFile, Dice& dice) {
  const std::string comments[] = {
      "// a note of mine",       "/* a note of mine */", "//",
      "    // indented { and }", "/* ends enda */",      "/* over\r\n   two lines */"};
  const auto at = static_cast<std::ptrdiff_t>(dice.Below(lines.size()));
  if (CommentedLines(lines)[static_cast<std::size_t>(at)]) return;
  lines.insert(lines.begin() + at, dice.Of(comments));
  lines = LinesOf(TextOf(lines));
}

void AddCommentBehind(Lines& lines, ModFile file, Dice& dice) {
  constexpr std::string_view kTake[] = {"define ", "definesound ", "  ", "action ", "move ", "ai "};
  const auto found = LinesThatBegin(lines, dice.Of(kTake));
  if (found.empty()) return;
  const std::string comments[] = {" // a note", file == kUser ? "// a note" : "\t// a note",
                                  " /* a note */", "  /**/"};
  std::string& line = lines[dice.Of(found)];
  if (line.find("//") == std::string::npos) line += dice.Of(comments);
}

void AddEmptyLine(Lines& lines, ModFile, Dice& dice) {
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(dice.Below(lines.size())),
               dice.Likely(1, 2) ? "" : "   ");
}

void AddBlanksBehind(Lines& lines, ModFile, Dice& dice) {
  const std::size_t at = dice.Below(lines.size());
  if (!IsPlain(lines, at)) return;
  lines[at] += std::string(1 + dice.Below(4), ' ');
}

void WidenBlanks(Lines& lines, ModFile, Dice& dice) {
  const auto defines = LinesThatBegin(lines, "define ");
  const auto sounds = LinesThatBegin(lines, "definesound ");
  const auto& found = dice.Likely(1, 2) ? defines : sounds;
  if (found.empty()) return;
  std::string& line = lines[dice.Of(found)];
  if (IsSoughtByConversion(line)) return;
  const std::size_t name = line.find(' ') + 1;
  const std::size_t behindName = line.find(' ', name);
  if (behindName == std::string::npos) return;
  line.insert(behindName, dice.Below(5), ' ');
}

/// The panel reads none of these files' values.
void IndentByTab(Lines& lines, ModFile file, Dice& dice) {
  if (file == kUser) return;
  const std::size_t at = dice.Below(lines.size());
  if (!IsPlain(lines, at) || lines[at].empty()) return;
  const std::size_t blank = lines[at].find_first_of(' ');
  if (blank != std::string::npos) lines[at].replace(blank, 1, "\t");
}

/// The case of letters does not matter, but for YES and NO.
void ChangeCase(Lines& lines, ModFile, Dice& dice) {
  const std::size_t at = dice.Below(lines.size());
  if (CommentedLines(lines)[at] || lines[at].find("//") != std::string::npos) return;
  const auto holds = [&](std::string_view word) {
    return lines[at].find(word) != std::string::npos;
  };
  if (holds("YES") || holds("NO")) return;
  lines[at] = dice.Likely(1, 2) ? ToUpperText(lines[at]) : ToLowerText(lines[at]);
}

void ChangeText(Lines& lines, ModFile, Dice& dice) {
  const auto quotes = LinesThatBegin(lines, "definequote ");
  if (quotes.empty()) return;
  std::string& line = lines[dice.Of(quotes)];
  if (IsSoughtByConversion(line)) return;
  const std::size_t number = line.find_first_of("0123456789");
  const std::size_t behind = std::min(line.find(' ', number), line.size());
  const std::string texts[] = {"DEFINE STATE ENDS { }", "MUSIC", "5", "A", "A / B * C",
                               std::string(64, 'X')};
  line = line.substr(0, behind) + "   " + dice.Of(texts);
}

void AddState(Lines& lines, ModFile file, Dice& dice) {
  if (file != kGame) return;
  const std::string name = "extra" + std::to_string(dice.Below(1'000'000'000));
  const std::string states[] = {
      "state " + name + "\r\n  ifrnd 8 { killit } else { state " + name + " break }\r\nends",
      "state " + name + "\r\n  ifpdistl\r\n    512\r\n    nullop\r\nends",
      "state " + name + " ifp pshrunk pducking killit else { fall } ends"};
  lines.back() += "\r\n" + dice.Of(states) + "\r\n";
  lines = LinesOf(TextOf(lines));
}

constexpr Mutation kMutations[] = {ChangeValue,  SwapWithNext,    AddCommentLine, AddCommentBehind,
                                   AddEmptyLine, AddBlanksBehind, WidenBlanks,    IndentByTab,
                                   ChangeCase,   ChangeText,      AddState};

void Mutate(ModTexts& mod, Dice& dice) {
  const auto file = static_cast<ModFile>(dice.Below(mod.size()));
  Lines lines = LinesOf(mod[file]);
  for (std::size_t i = 1 + dice.Below(12); i > 0; --i) dice.Of(kMutations)(lines, file, dice);
  mod[file] = TextOf(lines);
}

TEST(ValidMods, AreCleanHoweverTheyAreWritten) {
  const ModTexts* const mods[] = {&OlderMod(), &NewerMod(), &ConvertedMod()};
  for (int i = 0; i < Tries(300); ++i) {
    Dice dice(i);
    ModTexts mod = *dice.Of(mods);
    for (std::size_t files = 1 + dice.Below(3); files > 0; --files) Mutate(mod, dice);
    ASSERT_EQ(Shown(CheckMod(mod)), "") << "try " << i;
  }
}

TEST(ValidMods, AreChangedByEveryMutation) {
  for (const Mutation mutation : kMutations) {
    bool changed = false;
    for (int i = 0; i < 60 && !changed; ++i) {
      Dice dice(i);
      const auto file = static_cast<ModFile>(dice.Below(3));
      Lines lines = LinesOf(NewerMod()[file]);
      mutation(lines, file, dice);
      changed = TextOf(lines) != NewerMod()[file];
    }
    EXPECT_TRUE(changed) << std::distance(std::begin(kMutations),
                                          std::ranges::find(kMutations, mutation));
  }
}

}  // namespace
}  // namespace tessel::test
