// The mods that the templates make, and checking them.
#pragma once

#include <array>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "check/Check.h"
#include "check/rules/Rules.h"
#include "converter/VersionEdits.h"
#include "converter/modConVersion.h"
#include "data/DataFiles.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"
#include "words/WordFile.h"

namespace tessel::test {

enum ModFile : std::size_t { kUser, kDefs, kGame };

/// A user, a defs and a game file.
using ModTexts = std::array<std::string, 3>;

inline std::string Converted(const std::string& user) {
  ControlSet set;
  RichTextBox box(set, "rtbCon");
  box.SetText(user);
  ApplyVersionEdits(box);
  return (box.Text() + "\r\n").append(NewSoundDefinitions());
}

inline const ModTexts& OlderMod() {
  static const ModTexts mod = {ReadDataFile("zmuser.dat"), ReadDataFile("zmdefs.dat"),
                               ReadDataFile("zmgame.dat")};
  return mod;
}

inline const ModTexts& NewerMod() {
  static const ModTexts mod = {ReadDataFile("zmuserp.dat"), ReadDataFile("zmdefsp.dat"),
                               ReadDataFile("zmgamep.dat")};
  return mod;
}

/// The older user file as the conversion leaves it, with the newer other files.
inline const ModTexts& ConvertedMod() {
  static const ModTexts mod = {Converted(OlderMod()[kUser]), NewerMod()[kDefs], NewerMod()[kGame]};
  return mod;
}

inline const std::vector<ScriptWord>& StarterWords() {
  static const std::vector<ScriptWord> words = ParseWordFile(ReadDataFile("words.txt"));
  return words;
}

inline check::Knowledge WhatTesselKnows() {
  return {.words = StarterWords(),
          .olderTemplate = OlderMod()[kUser],
          .newerTemplate = NewerMod()[kUser]};
}

inline check::Findings CheckOne(const std::string& text, const check::Options& options = {},
                                std::string_view name = "USER.CON") {
  const check::Source source = {name, text};
  return check::Check({&source, 1}, WhatTesselKnows(), options);
}

inline check::Findings CheckMod(const ModTexts& mod, const check::Options& options = {}) {
  const std::array<check::Source, 3> sources = {
      {{"USER.CON", mod[kUser]}, {"DEFS.CON", mod[kDefs]}, {"GAME.CON", mod[kGame]}}};
  return check::Check(sources, WhatTesselKnows(), options);
}

/// "file 0 at 12: text [rule]", a line each.
inline std::string Shown(const check::Findings& findings) {
  std::string text;
  for (const check::Finding& finding : findings) {
    text += "file " + std::to_string(finding.file) + " at " + std::to_string(finding.range.begin) +
            ": " + finding.text + " [" + std::string(finding.rule->id) + "]\n";
  }
  return text;
}

/// How often a property is tried; the thorough run sets the number.
inline int Tries(int usual) {
  const char* tries = std::getenv("TESSEL_CHECK_TRIES");
  return tries == nullptr ? usual : std::atoi(tries);
}

/// Numbers that are the same in every run.
class Dice {
 public:
  explicit Dice(int seed) : engine_(static_cast<std::uint32_t>(seed)) {}
  std::size_t Below(std::size_t limit) { return engine_() % limit; }
  bool Likely(std::size_t part, std::size_t of) { return Below(of) < part; }
  template <class List>
  const auto& Of(const List& list) {
    return list[Below(std::size(list))];
  }

 private:
  std::mt19937 engine_;
};

}  // namespace tessel::test
