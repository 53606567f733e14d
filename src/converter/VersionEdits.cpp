#include "converter/VersionEdits.h"

#include <string>

#include "base/RuntimeError.h"
#include "converter/EditPrimitives.h"
#include "converter/modConVersion.h"

namespace tessel {
namespace {

// --- The kinds of edits

EditOutcome InsertAfter(RichTextBox& editor, const VersionEdit& edit) {
  return InsertAfterLine(editor, edit.sought, edit.text, true, 0);
}

EditOutcome Replace(RichTextBox& editor, const VersionEdit& edit) {
  return ReplaceLine(editor, edit.sought, edit.text, true);
}

EditOutcome ReplaceMatch(RichTextBox& editor, const VersionEdit& edit) {
  return ReplaceLine(editor, edit.sought, edit.text, false);
}

EditOutcome Substitute(RichTextBox& editor, const VersionEdit& edit) {
  if (FindLine(editor, edit.sought, true, 0) == kNotFound) return {};
  return {true, SubstituteInSelection(editor, edit.text, edit.replacement)};
}

/// Replaces the first `text` behind the hit, on whichever line it stands.
EditOutcome ReplaceBehind(RichTextBox& editor, const VersionEdit& edit, bool wholeLine) {
  const Position found = FindLine(editor, edit.sought, wholeLine, 0);
  if (found == kNotFound) return {};
  const Position value = FindLine(editor, edit.text, false, found + 1);
  if (value == kNotFound || value >= editor.SelEnd()) return {true, false};
  return {true, WriteRed(editor, edit.replacement)};
}

EditOutcome ReplaceBehindLine(RichTextBox& editor, const VersionEdit& edit) {
  return ReplaceBehind(editor, edit, true);
}

EditOutcome ReplaceBehindMatch(RichTextBox& editor, const VersionEdit& edit) {
  return ReplaceBehind(editor, edit, false);
}

// --- The edits that are like no other

EditOutcome InsertUnderHeading(RichTextBox& editor, const VersionEdit& edit) {
  const Position heading = FindLine(editor, edit.sought, true, 0);
  if (heading == kNotFound) return {};
  const std::string afterEmptyLine = std::string(kLineBreak).append(edit.replacement);
  return {true, InsertAfterLine(editor, edit.text, afterEmptyLine, true, heading + 1).changed};
}

EditOutcome InsertAfterEmptyLine(RichTextBox& editor, const VersionEdit& edit) {
  const std::string afterEmptyLine = std::string(kLineBreak).append(edit.text);
  return InsertAfterLine(editor, edit.sought, afterEmptyLine, true, 0);
}

[[noreturn]] void FailForLackOf(std::string_view missing) {
  throw RuntimeError("The file cannot be converted: its start-up parameters lack \"" +
                     std::string(missing) + "\".");
}

/// Replaces everything from `sought` through the first `text` after it. Where the latter is
/// missing, the arithmetic still gives a length when the list begins within its first characters.
EditOutcome ReplaceStartUpParameters(RichTextBox& editor, const VersionEdit& edit) {
  const Position first = FindLine(editor, edit.sought, false, 0);
  if (first == kNotFound) FailForLackOf(edit.sought);
  const Position last = FindLine(editor, edit.text, false, first);
  const Position length = last - first + std::ssize(edit.text);
  if (length < 0) FailForLackOf(edit.text);
  editor.SetSelStart(first);
  editor.SetSelLength(length);
  return {true, WriteRed(editor, edit.replacement)};
}

/// Where the words are missing, the text replaces whatever stands selected.
EditOutcome ReplaceMatchOrSelection(RichTextBox& editor, const VersionEdit& edit) {
  const Position found = FindLine(editor, edit.sought, false, 0);
  return {found != kNotFound, WriteRed(editor, edit.text)};
}

/// The second substitution finds an empty selection after the first replacement: it writes nothing.
EditOutcome ReplaceSteamPitch(RichTextBox& editor, const VersionEdit& edit) {
  const Position found = FindLine(editor, edit.sought, true, 0);
  if (found == kNotFound) return {};
  const Position value = FindLine(editor, edit.text, false, found + 1);
  if (value == kNotFound) return {true, false};
  const bool changed = value < editor.SelEnd() && WriteRed(editor, edit.replacement);
  return {true, SubstituteInSelection(editor, "0 8192", "1 10240") || changed};
}

constexpr auto kThen = VersionEdit::When::kIfEditBeforeFoundItsText;

// One line an edit; a step of several edits has several lines.
constexpr VersionEdit kVersionEdits[] = {
    {1, InsertAfter, "/*", "Converted to 1.4/1.5 by Zanth Manager"},
    {2, Replace, "define YELLHURTSOUNDSTRENGTHMP   50", kStretchBlock},
    {3, Replace, "define SWEARFREQUENCY", ""},
    {3, Replace, "define SWEARFREQUENCY", ""},
    {4, InsertUnderHeading, "// MISC GAME SETTINGS", "// ******************",
     "define SWEARFREQUENCY          100      // The lower, the less."},
    {5, InsertAfter, "define MAXSHRINKERAMMO", "define MAXGROWAMMO              50"},
    {6, InsertAfter, "define MAXTRIPBOMBAMMO", kTripbombLaserModeBlock},
    {7, InsertAfter, "define RESPAWNITEMTIME", kQsizeBlock},
    {8, InsertAfter, "define RUNNINGSPEED 53200", "define GRAVITATIONALCONSTANT 176"},
    {9, Substitute, "define SHRINKERBLASTRADIUS", "650", "680"},
    {10, ReplaceStartUpParameters, "gamestartup", "FREEZERHURTOWNER", kGamestartupBlock},
    {11, Replace, "// Adds rand()%5 (0 to 5)", ""},
    {12, InsertAfter, "define SHRINKER_WEAPON_STRENGTH",
     "define GROWSPARK_WEAPON_STRENGTH        15"},
    {13, Substitute, "define FREEZETHROWER_WEAPON_STRENGTH", "16", "20"},
    {14, InsertAfter, "define SHARKBITESTRENGTH", kNewbeastDefinesBlock},
    {15, InsertAfter, "define CRYSTALAMMOAMOUNT", "define GROWCRYSTALAMMOAMOUNT    20"},
    {16, InsertAfter, "define BOSS3STRENGTH", "define BOSS4STRENGTH            6000"},
    {17, Substitute, "define HBOMBTOUGH", "HBOMBTOUGH", "ROBOTMOUSESTRENGTH"},
    {17, Substitute, "define ROBOTMOUSESTRENGTH", "100", "45", kThen},
    {18, InsertAfter, "define GOTTASMART", "define PIRATEGALSTRENGTH 200"},
    {19, ReplaceMatch, "define BOMBTOUGH", "define MANWOMANSTRENGTH"},
    {20, InsertAfter, "// Maximum quote size is 64 characters.", "// Maximum quotes is 192 slots."},
    {21, Substitute, "definequote 28", "< EMPTY >", "WILL ALWAYS HAVE NO FUTURE"},
    {22, Substitute, "definequote 60", "SHRINKER!", "GOT SHRINKER/EXPANDER!"},
    {23, InsertAfter, "definequote 121", kNamesAndQuotesBlock},
    {24, ReplaceMatch, "// Level file names cannot excede 13 characters.",
     "// Level file names cannot excede 128 characters."},
    {25, Substitute, "definelevelname 0 7", "00:00 00:00", "99:99 99:99"},
    {26, Substitute, "definelevelname 0 8", "00:00 00:00", "12:48 16:32"},
    {26, Substitute, "definelevelname 0 8", "MULTIPLAYER 3", "VOID ZONE", kThen},
    {27, Substitute, "definelevelname 0 9", "00:00 00:00", "0T:HX 11:38"},
    {27, Substitute, "definelevelname 0 9", "MULTIPLAYER 4", "ROACH CONDO", kThen},
    {28, Substitute, "definelevelname 0 10", "00:00 00:00", "08:67 53:09"},
    {28, Substitute, "definelevelname 0 10", "MULTIPLAYER 5", "ANTIPROFIT", kThen},
    {29, InsertAfterEmptyLine, "definelevelname 2 10 E3L11.map 02:00 01:07 FREEWAY",
     kEpisode4LevelsBlock},
    {30, Substitute, "music 0", "ITSGREEN.MID", "BRIEFING.MID"},
    {31, ReplaceMatchOrSelection, "music 1", kMusic4Block},
    {32, ReplaceMatch,
     "Zanth may have up to 348 different sounds, currently thereare aprox. 254 slots used.", ""},
    {33, InsertAfter, "- The 5th number is volume adjustment.",
     "5. Zanth may have up to 400 total sound definitions."},
    {34, Replace, "definesound LIZARD_BEG", ""},
    {35, InsertAfter, "definesound LIZARD_SPIT", kNewbeastSoundsBlock},
    {36, ReplaceBehindMatch, "definesound SLIM_HATCH", "0   0", "-256  256"},
    {36, ReplaceBehindLine, "definesound SLIM_ROAM", "0   0", "-256  256"},
    {36, ReplaceBehindLine, "definesound SLIM_RECOG", "0   0", "-256  256"},
    {36, ReplaceBehindLine, "definesound SLIM_ATTACK", "0   0", "-256  256"},
    {36, ReplaceBehindMatch, "// definesound SLIM_PAIN", "0   0", "-256  256"},
    {36, ReplaceBehindLine, "definesound SLIM_DYING", "0   0", "-256  256"},
    {37, InsertAfter, "definesound BOS3_DYING", kBoss4SoundsBlock},
    {38, Substitute, "definesound RPG_EXPLODE", "254", "128"},
    {39, Substitute, "definesound SHRINKER_FIRE", "4", "5"},
    {40, InsertAfter, "definesound ACTOR_SHRINKING",
     "definesound ACTOR_GROWING       enlarge.voc    1024     0     2   0   0"},
    {41, Replace, "definesound JIBBED_ACTOR13", ""},
    {42, Substitute, "definesound ZANTH_LOOKINTOMIRROR", "12", "4"},
    {43, ReplaceBehindLine, "definesound SQUISHED", "0   0", "-128  0"},
    {44, Substitute, "definesound WIND_REPEAT", "3", "2"},
    {45, ReplaceSteamPitch, "definesound STEAM_HISSING", "1   8192", "0 10240"},
    {46, Substitute, "definesound BAR_MUSIC", "3", "2"},
    {47, InsertAfter, "definesound BAR_MUSIC", kStoreMusicBlock},
    {48, Substitute, "definesound ZANTH_SCREAM", "255", "0"},
    {49, Substitute, "definesound GENERIC_AMBIENCE12", "blank.voc", "drip3.voc"},
    {50, InsertAfter, "definesound GENERIC_AMBIENCE23",
     "definesound SUPERMARKET            aisle402.voc    0   0   0   4   0"},
    {51, InsertAfter, "definesound JIBBED_ACTOR12", kJibbedSoundsBlock},
    {52, ReplaceMatch, "definesound ENDSEQVOL3SND1", "// definesound ENDSEQVOL3SND1"},
};

}  // namespace

std::span<const VersionEdit> VersionEdits() { return kVersionEdits; }

std::vector<StepResult> ApplyVersionEdits(RichTextBox& editor) {
  std::vector<StepResult> results;
  EditOutcome before;
  for (const VersionEdit& edit : kVersionEdits) {
    if (edit.when == kThen && !before.found) continue;
    before = edit.apply(editor, edit);
    if (results.empty() || results.back().step != edit.step) {
      results.push_back({edit.step, edit.sought, before.found, before.changed});
    } else {
      results.back().found |= before.found;
      results.back().changed |= before.changed;
    }
  }
  return results;
}

}  // namespace tessel
