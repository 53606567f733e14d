// Every row of the settings panel finds its define in the user templates.
#include <gtest/gtest.h>

#include "data/DataFiles.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"
#include "settings/ItemTables.h"

namespace tessel::test {
namespace {

enum class Since { kOlder, kNewer };

struct Row {
  std::string_view key;
  int options;
  Since since = Since::kOlder;
};

void AddItems(std::vector<Row>& rows, std::span<const Item> items, int options) {
  for (const Item& item : items) {
    rows.push_back({item.key, options, item.newerDialectOnly ? Since::kNewer : Since::kOlder});
  }
}

/// Every key that the panel's rules name, with how it is searched.
std::vector<Row> Rows() {
  std::vector<Row> rows;
  AddItems(rows, PlayerItemTable, kFindWholeWord);
  for (const WeaponCategory& category : WeaponCategoryTable) {
    for (const Weapon& weapon : category.weapons) rows.push_back({weapon.key, kFindDefault});
    for (const UnlistedKey& unlisted : category.unlisted) {
      rows.push_back({unlisted.key, kFindDefault, Since::kNewer});
    }
  }
  AddItems(rows, EnemyItemTable, kFindWholeWord);
  AddItems(rows, MiscItemTable, kFindDefault);
  return rows;
}

struct Editor {
  explicit Editor(const std::string& text) { box.SetText(text); }

  /// Selects the last blank-delimited token before the comment or the end of the line.
  void SelectValue() {
    box.Span("/\n", true, true);
    const bool endsWithBlank = box.SelText().ends_with(' ');
    box.SetSelStart(box.SelEnd());
    if (endsWithBlank) {
      box.Span(" ", false, false);
      box.SetSelLength(0);
    }
    box.Span(" ", false, true);
  }

  std::string ValueOf(std::string_view key, int options) {
    if (box.Find(key, 0, std::nullopt, options) == kNotFound) return "(not found)";
    SelectValue();
    return box.SelText();
  }

  /// The line of the match, up to its value.
  std::string LineUpToValue() const {
    const std::string text = box.Text().substr(0, static_cast<std::size_t>(box.SelStart()));
    const auto end = text.rfind('\n');
    return end == std::string::npos ? text : text.substr(end + 1);
  }

  ControlSet set;
  RichTextBox box{set, "rtbCon"};
};

bool IsNumber(const std::string& value) {
  const auto digits = value.substr(value.starts_with('-') ? 1 : 0);
  return !digits.empty() && digits.find_first_not_of("0123456789") == std::string::npos;
}

void ExpectRows(const char* file, Since newest) {
  Editor editor(ReadDataFile(file));
  for (const Row& row : Rows()) {
    if (row.since > newest) continue;
    EXPECT_TRUE(IsNumber(editor.ValueOf(row.key, row.options)))
        << file << ": " << row.key << " = " << editor.box.SelText();
    EXPECT_TRUE(editor.LineUpToValue().starts_with("define ")) << file << ": " << row.key;
  }
}

TEST(SettingsRows, FindTheirDefineInTheOlderUserTemplate) {
  ExpectRows("zmuser.dat", Since::kOlder);
}

TEST(SettingsRows, FindTheirDefineInTheNewerUserTemplate) {
  ExpectRows("zmuserp.dat", Since::kNewer);
}

TEST(SettingsRows, OfTheNewerDialectAreNotInTheOlderUserTemplate) {
  Editor editor(ReadDataFile("zmuser.dat"));
  for (const Row& row : Rows()) {
    if (row.since == Since::kNewer) {
      EXPECT_EQ(editor.ValueOf(row.key, row.options), "(not found)") << row.key;
    }
  }
}

class UserTemplate : public testing::TestWithParam<const char*> {
 protected:
  Editor editor_{ReadDataFile(GetParam())};
};

TEST_P(UserTemplate, HoldsYesOrNoInTheDefinesOfTheOptionPairs) {
  for (const std::string_view key : {kCamerasDestructable, kFreezerHurtOwner}) {
    const auto value = editor_.ValueOf(key, kFindWholeWord);
    EXPECT_TRUE(value == "YES" || value == "NO") << key << " = " << value;
    EXPECT_TRUE(editor_.LineUpToValue().starts_with("define ")) << key;
  }
}

TEST_P(UserTemplate, HoldsTheFirstLineOfEveryWeaponSection) {
  for (const WeaponCategory& category : WeaponCategoryTable) {
    EXPECT_NE(editor_.box.Find(category.sectionMarker, 0), kNotFound) << category.sectionMarker;
  }
  EXPECT_LT(editor_.box.Find("// Weapon Strengths", 0),
            editor_.box.Find("KNEE_WEAPON_STRENGTH", 0));
  EXPECT_LT(editor_.box.Find("// Various blast radius distances", 0),
            editor_.box.Find("RPGBLASTRADIUS", 0));
}

TEST_P(UserTemplate, DefinesEveryNameThatTheGameReadsAtItsStart) {
  const auto start = editor_.box.Find("gamestartup", 0, std::nullopt, kFindWholeWord);
  ASSERT_NE(start, kNotFound);
  auto list = editor_.box.Text().substr(static_cast<std::size_t>(start));
  list = list.substr(0, list.find("\r\n\r\n"));
  const auto names = Tokens(list);
  EXPECT_GE(names.size(), 26u);
  for (std::size_t i = 1; i < names.size(); ++i) {
    EXPECT_NE(editor_.box.Find("define " + names[i], 0, start, kFindWholeWord), kNotFound)
        << names[i];
  }
}

INSTANTIATE_TEST_SUITE_P(Both, UserTemplate, testing::Values("zmuser.dat", "zmuserp.dat"),
                         [](const auto& param) {
                           return std::string(param.param) == "zmuser.dat" ? "Older" : "Newer";
                         });

}  // namespace
}  // namespace tessel::test
