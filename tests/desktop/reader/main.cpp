// A screen reader at the window of a person: screen-reader.sh runs this beside the program.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
#include <set>

#include "ReadTree.h"

namespace tessel::test {
namespace {

const Reader& Window() {
  static const Reader reader("zanth-manager");
  return reader;
}

/// A person's keys, as xdotool names them.
void Press(const QStringList& keys) { QProcess::execute("xdotool", QStringList("key") + keys); }

/// Roles of things that a person works with or reads.
const std::set<QString> kNamedRoles = {"push button", "popup menu", "check box",    "radio button",
                                       "combo box",   "text",       "list",         "tree",
                                       "menu item",   "menu bar",   "page tab",     "page tab list",
                                       "spin box",    "tool bar",   "dialog",       "frame",
                                       "list item",   "panel",      "toggle button"};

/// The toolkit's own frames and rows of buttons hold what has names.
bool MayBeNameless(const Reader& window, const Accessible& at, const QString& role) {
  if (role == "frame") return window.Parent(at).path != window.Program().path;
  return role == "panel" || role == "list item" || role == "tree item";
}

QStringList Nameless() {
  const Reader& window = Window();
  QStringList nameless;
  for (const Accessible& at : window.InSight(window.Program())) {
    const QString role = window.Role(at);
    const bool counts = kNamedRoles.contains(role) || window.Is(at, AtState::kFocusable);
    if (!counts || MayBeNameless(window, at, role)) continue;
    if (window.Name(at).isEmpty() && !window.HasLabel(at)) nameless += window.Place(at);
  }
  return nameless;
}

std::optional<Accessible> Await(const char* role, const QString& name) {
  auto found = Window().Await(role, name);
  EXPECT_TRUE(found) << role << " '" << name.toStdString() << "' is not there";
  return found;
}

void ExpectNoneNameless(const char* state) {
  EXPECT_EQ(Nameless().join("\n").toStdString(), "") << state;
}

TEST(ScreenReader, ReadsNothingNamelessInAnyState) {
  ASSERT_TRUE(Window().FindsProgram());
  const auto row = Await("page tab list", "Settings categories");
  ASSERT_TRUE(row);
  for (const Accessible& tab : Window().Children(*row)) {
    if (Window().Role(tab) != "page tab") continue;
    Window().Do(tab, "Press");
    ASSERT_TRUE(Window().Await([&](const Accessible& at) {
      return at.path == tab.path && Window().Is(at, AtState::kSelected);
    }));
    ExpectNoneNameless(Window().Name(tab).toUtf8());
  }
  struct Step {
    const char* keys;
    const char* role;
    const char* name;
  };
  constexpr Step kSteps[] = {
      {"ctrl+r", "text", "Replace by"},
      {"ctrl+shift+o", "tree", "Outline"},
      {"ctrl+comma", "dialog", "Preferences"},
  };
  for (const auto& [keys, role, name] : kSteps) {
    Press({keys});
    ASSERT_TRUE(Await(role, name));
    ExpectNoneNameless(name);
    if (QString(role) == "dialog") Press({"Escape"});
    if (QString(role) == "dialog") {
      ASSERT_TRUE(Window().AwaitGone(role, name)) << name;
    }
  }
}

TEST(ScreenReader, ReadsTheTextAndThePlaceOfTheCaret) {
  const auto editor = Await("text", "Editor");
  ASSERT_TRUE(editor);
  EXPECT_EQ(Window().Text(*editor).toStdString(),
            "define MAXPLAYERHEALTH 100 // health\r\nsecond line\r\n");
  Window().Do(*editor, "SetFocus");
  Press({"ctrl+Home", "Down", "Right", "Right"});
  EXPECT_TRUE(Await("label", "Ln 2, Col 3"));
  EXPECT_EQ(Window().Caret(*editor), 40);
  Press({"shift+Right", "shift+Right", "shift+Right"});
  EXPECT_TRUE(Await("label", "3 selected"));
}

TEST(ScreenReader, ReadsThatADocumentIsModified) {
  EXPECT_TRUE(Await("page tab", "user.con"));
  const auto editor = Await("text", "Editor");
  ASSERT_TRUE(editor);
  Window().Do(*editor, "SetFocus");
  Press({"ctrl+End", "a"});
  EXPECT_TRUE(Await("page tab", "user.con, modified"));
  EXPECT_TRUE(Await("label", "Modified"));
  Press({"ctrl+z"});
  EXPECT_TRUE(Await("page tab list", "Documents"));
}

TEST(ScreenReader, FindsRadioButtonsInGroupsThatNameThem) {
  Window().Do(*Await("page tab", "Misc Items"), "Press");
  for (const char* name : {"Cameras Destructable: Yes", "Cameras Destructable: No"}) {
    const auto option = Await("radio button", name);
    ASSERT_TRUE(option);
    const Accessible group = Window().Parent(*option);
    EXPECT_EQ(Window().Name(group), "Cameras Destructable:");
    EXPECT_EQ(Window().Children(group).size(), 2U);
  }
}

TEST(ScreenReader, ReadsTheParametersOfAFunction) {
  Window().Do(*Await("page tab", "Functions"), "Press");
  const auto search = Await("text", "Search for a function");
  ASSERT_TRUE(search);
  Window().Focus(*search);
  Press({"a", "d", "d", "a", "m", "m", "o"});
  EXPECT_TRUE(Window().Await([](const Accessible& at) {
    return Window().Role(at) == "label" && Window().Name(at).contains("weapon");
  }));
}

TEST(GermanScreenReader, ReadsTheWindowInGermanAndTheControlInEnglish) {
  ASSERT_TRUE(Window().FindsProgram());
  EXPECT_TRUE(Await("menu item", "Datei"));
  EXPECT_TRUE(Await("page tab list", "Dokumente"));
  EXPECT_TRUE(Await("page tab", "Player Items"));
  EXPECT_TRUE(Await("label", "Z. 1, Sp. 1"));
  ExpectNoneNameless("German");
}

}  // namespace
}  // namespace tessel::test

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
