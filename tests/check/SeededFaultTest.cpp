// A fault of any rule is found wherever it is put into a mod.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "ModLines.h"
#include "Mods.h"

namespace tessel::test {
namespace {

using Lines = std::vector<std::string>;

/// Where a fault was put; the finding has to overlap that line, or any line where there is none.
struct Place {
  ModFile file = kUser;
  std::ptrdiff_t line = -1;
};
using Seed = Place (*)(ModTexts& mod, Dice& dice);

/// Changes one of the lines that begin so.
template <class Change>
Place ChangeLine(ModTexts& mod, ModFile file, std::string_view begin, Dice& dice, Change change) {
  Lines lines = LinesOf(mod[file]);
  const std::size_t at = dice.Of(LinesThatBegin(lines, begin));
  change(lines, at);
  mod[file] = TextOf(lines);
  return {file, static_cast<std::ptrdiff_t>(at)};
}

Place InsertLine(ModTexts& mod, ModFile file, std::string_view begin, Dice& dice,
                 const std::string& line) {
  return ChangeLine(mod, file, begin, dice, [&](Lines& lines, std::size_t at) {
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), line);
  });
}

Place AppendToLine(ModTexts& mod, ModFile file, std::string_view begin, Dice& dice,
                   const std::string& text) {
  return ChangeLine(mod, file, begin, dice, [&](Lines& lines, std::size_t at) {
    lines[at] = lines[at].substr(0, lines[at].find("//")) + text;
  });
}

/// The words of a line without its comment.
std::vector<std::string> WordsOf(const std::string& line) {
  return Tokens(line.substr(0, line.find("//")));
}

std::string Joined(const std::vector<std::string>& words) {
  std::string line;
  for (const std::string& word : words) line += (line.empty() ? "" : " ") + word;
  return line;
}

template <class Change>
Place ChangeWords(ModTexts& mod, ModFile file, std::string_view begin, Dice& dice, Change change) {
  return ChangeLine(mod, file, begin, dice, [&](Lines& lines, std::size_t at) {
    std::vector<std::string> words = WordsOf(lines[at]);
    change(words);
    lines[at] = Joined(words);
  });
}

/// Copies a line to the place in front of another one of its kind, or behind the last.
Place CopyLine(ModTexts& mod, ModFile file, std::string_view begin, Dice& dice) {
  Lines lines = LinesOf(mod[file]);
  const auto found = LinesThatBegin(lines, begin);
  const std::size_t from = dice.Of(found), to = dice.Of(found);
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(to), lines[from]);
  mod[file] = TextOf(lines);
  return {file, -1};
}

Place TakeLine(ModTexts& mod, ModFile file, std::string_view begin, Dice& dice) {
  const Place place = ChangeLine(mod, file, begin, dice, [&](Lines& lines, std::size_t at) {
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(at));
  });
  return {place.file, -1};
}

std::string AnyPanelItem(Dice& dice) {
  constexpr const char* kItems[] = {"MAXPLAYERHEALTH",      "BOOT_AMOUNT", "TROOPSTRENGTH",
                                    "BOSS2STRENGTH",        "THAWTIME",    "RETRIEVEDISTANCE",
                                    "KNEE_WEAPON_STRENGTH", "MAXRPGAMMO",  "PIPEBOMBRADIUS"};
  return dice.Of(kItems);
}

// A place in the game file where a command can stand.
constexpr std::string_view kCommandLine = "  addkills 1";

const std::map<std::string_view, Seed> kSeeds = {
    {"open-comment",
     [](ModTexts& mod, Dice& dice) {
       // Behind it no comment is closed.
       Lines lines = LinesOf(mod[kGame]);
       const auto found = LinesThatBegin(lines, "  ");
       const std::size_t at = dice.Of(found);
       lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), "/* a note");
       mod[kGame] = TextOf(lines);
       return Place{kGame, static_cast<std::ptrdiff_t>(at)};
     }},
    {"stray-comment-end",
     [](ModTexts& mod, Dice& dice) { return AppendToLine(mod, kGame, "  ", dice, " */"); }},
    {"open-state", [](ModTexts& mod, Dice& dice) { return TakeLine(mod, kGame, "ends", dice); }},
    {"open-actor", [](ModTexts& mod, Dice& dice) { return TakeLine(mod, kGame, "enda", dice); }},
    {"open-brace", [](ModTexts& mod, Dice& dice) { return TakeLine(mod, kGame, "  }", dice); }},
    {"stray-closer",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kClosers[] = {"ends", "enda", "}"};
       return InsertLine(mod, kGame, "action ", dice, dice.Of(kClosers));
     }},
    {"doubled-define",
     [](ModTexts& mod, Dice& dice) {
       return CopyLine(mod, dice.Likely(1, 2) ? kUser : kDefs, "define ", dice);
     }},
    {"define-without-value",
     [](ModTexts& mod, Dice& dice) {
       return ChangeWords(mod, dice.Likely(1, 2) ? kUser : kDefs, "define ", dice,
                          [](auto& words) { words.pop_back(); });
     }},
    {"define-with-more",
     [](ModTexts& mod, Dice& dice) {
       return ChangeWords(mod, dice.Likely(1, 2) ? kUser : kDefs, "define ", dice,
                          [](auto& words) { words.push_back("more"); });
     }},
    {"panel-value",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kValues[] = {"lots", "5x", "2147483648", "YES", "1.5"};
       const std::string value = dice.Of(kValues);
       return ChangeWords(mod, kUser, "define " + AnyPanelItem(dice) + " ", dice,
                          [&](auto& words) { words[2] = value; });
     }},
    {"panel-missing",
     [](ModTexts& mod, Dice& dice) {
       return TakeLine(mod, kUser, "define " + AnyPanelItem(dice) + " ", dice);
     }},
    {"panel-elsewhere",
     [](ModTexts& mod, Dice& dice) {
       const std::string item = AnyPanelItem(dice);
       Lines lines = LinesOf(mod[kUser]);
       const std::size_t define = LinesThatBegin(lines, "define " + item + " ").front();
       const std::size_t at = dice.Below(define + 1);
       lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at),
                    "// define " + item + " was 5");
       mod[kUser] = TextOf(lines);
       return Place{kUser, static_cast<std::ptrdiff_t>(at)};
     }},
    {"level-fields",
     [](ModTexts& mod, Dice& dice) {
       const std::size_t kept = 1 + dice.Below(5);
       return ChangeWords(mod, kUser, "definelevelname ", dice,
                          [&](auto& words) { words.resize(kept); });
     }},
    {"level-time",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kTimes[] = {"1:05", "01:5", "0105", "01:05:0", "01.05", "001:05"};
       const std::size_t which = 4 + dice.Below(2);
       const std::string time = dice.Of(kTimes);
       return ChangeWords(mod, kUser, "definelevelname ", dice,
                          [&](auto& words) { words[which] = time; });
     }},
    {"level-doubled",
     [](ModTexts& mod, Dice& dice) { return CopyLine(mod, kUser, "definelevelname ", dice); }},
    {"level-order",
     [](ModTexts& mod, Dice& dice) {
       Lines lines = LinesOf(mod[kUser]);
       const auto found = LinesThatBegin(lines, "definelevelname ");
       const std::size_t first = dice.Below(found.size() - 1);
       const std::size_t second = first + 1 + dice.Below(found.size() - first - 1);
       std::swap(lines[found[first]], lines[found[second]]);
       mod[kUser] = TextOf(lines);
       return Place{kUser, -1};
     }},
    {"level-blanks",
     [](ModTexts& mod, Dice& dice) {
       const std::size_t gap = dice.Below(6);
       const bool tab = dice.Likely(1, 2);
       return ChangeLine(mod, kUser, "definelevelname ", dice, [&](Lines& lines, std::size_t at) {
         std::size_t blank = lines[at].find(' ');
         for (std::size_t i = 0; i < gap; ++i) blank = lines[at].find(' ', blank + 1);
         lines[at].replace(blank, 1, tab ? "\t" : "  ");
       });
     }},
    {"level-map-length",
     [](ModTexts& mod, Dice& dice) {
       const std::size_t length = 129 + dice.Below(9);
       return ChangeWords(mod, kUser, "definelevelname ", dice,
                          [&](auto& words) { words[3] = std::string(length, 'm'); });
     }},
    {"text-number",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kNumbers[] = {"x", "-1", "1x"};
       const std::string number = dice.Of(kNumbers);
       return ChangeWords(mod, kUser, "definequote ", dice,
                          [&](auto& words) { words[1] = number; });
     }},
    {"text-doubled",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kKinds[] = {"definequote ", "definevolumename ", "defineskillname "};
       return CopyLine(mod, kUser, dice.Of(kKinds), dice);
     }},
    {"text-length",
     [](ModTexts& mod, Dice& dice) {
       const std::string more(65 + dice.Below(40), 'Q');
       return AppendToLine(mod, kUser, "definequote ", dice, " " + more);
     }},
    {"sound-fields",
     [](ModTexts& mod, Dice& dice) {
       const std::size_t words = dice.Likely(1, 3) ? 9 : 1 + dice.Below(7);
       return ChangeWords(mod, kUser, "definesound ", dice,
                          [&](auto& all) { all.resize(words, "0"); });
     }},
    {"sound-doubled",
     [](ModTexts& mod, Dice& dice) {
       CopyLine(mod, kUser, "definesound ", dice);
       // One of the two becomes another; any other line stays the only one of its name.
       Lines lines = LinesOf(mod[kUser]);
       std::map<std::string, std::size_t> names;
       for (const std::size_t at : LinesThatBegin(lines, "definesound ")) {
         std::vector<std::string> words = WordsOf(lines[at]);
         if (names.try_emplace(words[1], at).second) continue;
         words[2] = "other.voc";
         lines[at] = Joined(words);
       }
       mod[kUser] = TextOf(lines);
       return Place{kUser, -1};
     }},
    {"sound-slot",
     [](ModTexts& mod, Dice& dice) {
       Lines user = LinesOf(mod[kUser]);
       const auto sounds = LinesThatBegin(user, "definesound ");
       const std::size_t first = dice.Below(sounds.size());
       const std::size_t second = (first + 1 + dice.Below(sounds.size() - 1)) % sounds.size();
       const std::string one = WordsOf(user[sounds[first]])[1];
       const std::string other = WordsOf(user[sounds[second]])[1];
       Lines defs = LinesOf(mod[kDefs]);
       const auto lineOf = [&](const std::string& name) {
         return LinesThatBegin(defs, "define " + name + " ").front();
       };
       defs[lineOf(one)] = "define " + one + " " + WordsOf(defs[lineOf(other)])[2];
       mod[kDefs] = TextOf(defs);
       return Place{kUser, -1};
     }},
    {"unknown-word",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kLines[] = {"  kilit", "  adddkills 1", "  ifrnd 5 spwan BLOOD",
                                         "dfine NAME 5", "  5"};
       return InsertLine(mod, kGame, dice.Likely(1, 2) ? "  addkills" : "move ", dice,
                         dice.Of(kLines));
     }},
    {"parameter-count",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kLines[] = {"  guts JIBS", "  killit 5", "  addphealth 5 6", "  ifrnd",
                                         "  palfrom 1 2 3"};
       return InsertLine(mod, kGame, kCommandLine, dice, dice.Of(kLines));
     }},
    {"undefined-name",
     [](ModTexts& mod, Dice& dice) {
       constexpr const char* kLines[] = {"  spawn NOSUCH",  "  state nosuch", "  sound NOSUCH",
                                         "  guts NOSUCH 5", "  ai NOSUCH",    "  action NOSUCH"};
       return InsertLine(mod, kGame, kCommandLine, dice, dice.Of(kLines));
     }},
    {"include-not-given",
     [](ModTexts& mod, Dice& dice) {
       return InsertLine(mod, kGame, "define ", dice, "include MORE.CON");
     }},
    {"conversion-step",
     [](ModTexts& mod, Dice& dice) {
       mod[kUser] = OlderMod()[kUser];
       constexpr const char* kLines[] = {"define MAXTRIPBOMBAMMO", "definequote 121 ",
                                         "definesound BOS3_DYING", "definelevelname 2 10 "};
       return TakeLine(mod, kUser, dice.Of(kLines), dice);
     }},
    {"conversion-stops",
     [](ModTexts& mod, Dice&) {
       mod[kUser] = OlderMod()[kUser];
       const std::size_t at = mod[kUser].find("gamestartup");
       mod[kUser].replace(at, std::string_view("gamestartup").size(), "// gamestart");
       return Place{kUser, -1};
     }},
    {"randomizer-stops",
     [](ModTexts& mod, Dice& dice) {
       return ChangeWords(mod, kUser, "define " + AnyPanelItem(dice) + " ", dice,
                          [](auto& words) { words[2] = "lots"; });
     }},
    {"control-character",
     [](ModTexts& mod, Dice& dice) {
       const auto file = static_cast<ModFile>(dice.Below(3));
       Lines lines = LinesOf(mod[file]);
       const std::size_t at = dice.Below(lines.size());
       constexpr char kControls[] = {'\x00', '\x01', '\x08', '\x0B',
                                     '\x0C', '\x1A', '\x1F', '\x7F'};
       lines[at].insert(dice.Below(lines[at].size() + 1), 1, dice.Of(kControls));
       mod[file] = TextOf(lines);
       return Place{file, static_cast<std::ptrdiff_t>(at)};
     }},
    {"mixed-line-ends",
     [](ModTexts& mod, Dice& dice) {
       const auto file = static_cast<ModFile>(dice.Below(3));
       std::vector<std::size_t> breaks;
       for (std::size_t at = mod[file].find("\r\n"); at != std::string::npos;
            at = mod[file].find("\r\n", at + 1)) {
         breaks.push_back(at);
       }
       mod[file].erase(dice.Of(breaks) + dice.Below(2), 1);
       return Place{file, -1};
     }},
    {"unknown-rule",
     [](ModTexts& mod, Dice& dice) {
       return AppendToLine(mod, kUser, "define ", dice, " // check: off no-such-rule");
     }},
};

bool LiesInLine(const std::string& text, std::ptrdiff_t line, language::Range range) {
  const check::LineIndex lines(text);
  const std::ptrdiff_t wanted = line + 1;
  return lines.PlaceOf(range.begin).line <= wanted && wanted <= lines.PlaceOf(range.end).line;
}

bool IsFound(const ModTexts& mod, const check::Rule& rule, const Place& place) {
  const check::Findings findings = CheckMod(mod, {.rules = {&rule}});
  return std::ranges::any_of(findings, [&](const check::Finding& finding) {
    return finding.file == place.file &&
           (place.line < 0 || LiesInLine(mod[place.file], place.line, finding.range));
  });
}

class SeededFault : public testing::TestWithParam<const check::Rule*> {};

TEST_P(SeededFault, IsFound) {
  const auto seed = kSeeds.find(GetParam()->id);
  ASSERT_NE(seed, kSeeds.end());
  for (int i = 0; i < Tries(20); ++i) {
    Dice dice(i);
    ModTexts mod = NewerMod();
    const Place place = seed->second(mod, dice);
    ASSERT_TRUE(IsFound(mod, *GetParam(), place)) << "try " << i << ", line " << place.line + 1;
  }
}

INSTANTIATE_TEST_SUITE_P(Check, SeededFault, testing::ValuesIn(check::AllRules()),
                         [](const auto& rule) {
                           std::string name(rule.param->id);
                           std::erase(name, '-');
                           return name;
                         });

}  // namespace
}  // namespace tessel::test
