// Each letter that is a key with Alt belongs to one thing in sight, and everything that can be
// named by one has one.
#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QToolBar>
#include <fstream>

#include "HostFixture.h"
#include "host/ChangeNotice.h"
#include "host/RecoveryOffer.h"
#include "host/language/Translations.h"
#include "host/menu/MenuTable.h"
#include "host/problems/ProblemCount.h"
#include "host/problems/ProblemDock.h"
#include "models/Form.h"

namespace tessel::test {
namespace {

/// What has been seen of one window or menu.
struct Letters {
  QMap<QChar, QStringList> captions;  // by their letter
  QStringList without;

  void Add(const QString& caption) {
    if (caption.isEmpty()) return;
    const QChar letter = MnemonicOf(caption);
    letter.isNull() ? without += caption : captions[letter] += caption;
  }
  std::string Clashes() const {
    QStringList clashes;
    for (const QStringList& named : captions) {
      if (named.size() > 1) clashes += named.join(" / ");
    }
    return clashes.join("; ").toStdString();
  }
  std::string Without() const { return without.join("; ").toStdString(); }
  /// Those of which every letter is taken have none.
  std::string WithoutThoughOneIsFree() const {
    QStringList names;
    for (const QString& caption : without) {
      const bool free = std::ranges::any_of(
          caption, [this](QChar c) { return c.isLetter() && !captions.contains(c.toLower()); });
      if (free) names += caption;
    }
    return names.join("; ").toStdString();
  }
};

/// Options are reached by the letter of their group, buttons of the toolbar by the arrow keys, and
/// what every dialog has by Return and Esc.
bool NeedsNone(const QWidget& part) {
  if (qobject_cast<const QRadioButton*>(&part) != nullptr) {
    return qobject_cast<const QGroupBox*>(part.parentWidget()) != nullptr;
  }
  const auto* box = qobject_cast<const QDialogButtonBox*>(part.parentWidget());
  const auto* button = qobject_cast<const QAbstractButton*>(&part);
  if (box != nullptr && button != nullptr) {
    return box->standardButton(const_cast<QAbstractButton*>(button)) != QDialogButtonBox::NoButton;
  }
  return qobject_cast<const QToolBar*>(part.parentWidget()) != nullptr;
}

QString CaptionOf(const QWidget& part) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&part)) return button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&part)) return group->title();
  const auto* label = qobject_cast<const QLabel*>(&part);
  return label == nullptr || label->buddy() == nullptr ? QString() : label->text();
}

Letters LettersOf(const QWidget& window) {
  Letters letters;
  for (const auto* part : window.findChildren<QWidget*>()) {
    if (part->window() != &window || !part->isVisible()) continue;
    if (!NeedsNone(*part)) letters.Add(CaptionOf(*part));
    const auto* menus = qobject_cast<const QMenuBar*>(part);
    if (menus == nullptr) continue;
    for (const QAction* title : menus->actions()) letters.Add(title->text());
  }
  return letters;
}

/// The window is built in that language.
class InLanguage : public testing::WithParamInterface<const char*> {
 protected:
  const Translations translations_{QLocale(GetParam())};
};

class Mnemonics : public InLanguage, public HostTest {
 protected:
  MainWindow& Window() { return *Run().window; }
  bool InEnglish() const { return QLocale(GetParam()).language() == QLocale::English; }
  void Trigger(const char* caption) {
    QAction* item = Run().MenuItem(Translated(caption));
    ASSERT_NE(item, nullptr) << caption;
    item->trigger();
    QTest::qWait(1);
  }
  Letters OnPage(int page) {
    Run().Controls().tbsCon.Press(page + 1);
    Run().Controls().cmdInsert[0].SetEnabled(true);
    QTest::qWait(1);
    return LettersOf(Window());
  }
  void ExpectFreeOfClashesOnEveryPage(const char* state, bool all = true) {
    for (int page = 0; page < kSettingsPages; ++page) {
      const Letters letters = OnPage(page);
      EXPECT_EQ(letters.Clashes(), "") << state << ", page " << page;
      EXPECT_EQ(letters.WithoutThoughOneIsFree(), "") << state << ", page " << page;
      if (!all || !InEnglish()) continue;
      EXPECT_EQ(letters.Without(), "") << state << ", page " << page;
    }
  }
  QDialog* DialogInFront() {
    for (auto* dialog : Window().findChildren<QDialog*>()) {
      if (dialog->isVisible()) return dialog;
    }
    return nullptr;
  }
  void ExpectFreeOfClashesInDialog(const char* name) {
    QDialog* dialog = DialogInFront();
    ASSERT_NE(dialog, nullptr) << name;
    EXPECT_EQ(LettersOf(*dialog).Clashes(), "") << name;
    EXPECT_EQ(LettersOf(*dialog).Without(), "") << name;
    dialog->close();
    QTest::qWait(1);
  }
};

TEST_P(Mnemonics, AreEachPagesOwn) { ExpectFreeOfClashesOnEveryPage("no bar"); }

TEST_P(Mnemonics, AreTheFindBarsOwn) {
  Trigger("Find as You &Type");
  ExpectFreeOfClashesOnEveryPage("find bar");
  Trigger("&Replace...");
  ExpectFreeOfClashesOnEveryPage("replace bar");
}

TEST_P(Mnemonics, AreTheProblemsOwn) {
  Trigger("&Problems");
  Window().Wishes().Set(Wish::kLiveCheck, 0);
  Window().OpenFiles({directory_.Put("a.con", "ends\r\n")});
  auto* dock = Window().findChild<ProblemDock*>();
  emit dock->Pane().checkWanted();
  auto* count = Window().findChild<ProblemCount*>();
  ASSERT_TRUE(QTest::qWaitFor([&] { return count->isVisible(); }, kPatience));
  ExpectFreeOfClashesOnEveryPage("problems", false);
}

TEST_P(Mnemonics, AreEachNoticesOwn) {
  const std::string path = directory_.Put("a.con", "define A 1\r\n");
  Window().OpenFiles({path});
  Run().Editor(0).Type("unsaved");
  Window().KeepTexts();
  Restart();
  ASSERT_TRUE(Window().findChild<RecoveryOffer*>()->isVisible());
  ExpectFreeOfClashesOnEveryPage("recovery", false);
  Window().OpenFiles({directory_.Put("user.con", "define QSIZE 5\r\n")});
  auto* changed = Window().findChild<ChangeNotice*>();
  std::ofstream(directory_ / "user.con") << "others were here";
  ASSERT_TRUE(QTest::qWaitFor([&] { return changed->isVisible(); }, kPatience));
  ExpectFreeOfClashesOnEveryPage("recovery and change", false);
  Trigger("&Replace...");
  ExpectFreeOfClashesOnEveryPage("all bars", false);
}

TEST_P(Mnemonics, OfABarComeBackWhereTheyAreFreeAgain) {
  if (!InEnglish()) GTEST_SKIP() << "the letters are those of the English captions";
  Trigger("&Replace...");
  const auto shows = [this](const QString& caption) {
    const auto buttons = Window().findChildren<QAbstractButton*>();
    return std::ranges::any_of(buttons,
                               [&](const auto* button) { return button->text() == caption; });
  };
  OnPage(kPlayerPage);
  EXPECT_TRUE(shows("In All Docu&ments"));
  OnPage(kLevelPage);
  EXPECT_FALSE(shows("In All Docu&ments")) << "the letter is the map's";
  OnPage(kPlayerPage);
  EXPECT_TRUE(shows("In All Docu&ments"));
}

TEST_P(Mnemonics, AreEachMenusOwn) {
  for (const QAction* title : Window().menuBar()->actions()) {
    Letters letters;
    for (const QAction* item : title->menu()->actions()) {
      if (!item->isSeparator()) letters.Add(item->text());
    }
    EXPECT_EQ(letters.Clashes(), "") << title->text().toStdString();
    EXPECT_EQ(letters.Without(), "") << title->text().toStdString();
  }
}

TEST_P(Mnemonics, AreEachDialogsOwn) {
  for (const char* item : {"Pr&eferences...", "Go to &Line...", "&Backups..."}) {
    const auto actions = Window().findChildren<QAction*>();
    const auto found = std::ranges::find(actions, Translated(item), &QAction::text);
    ASSERT_NE(found, actions.end()) << item;
    (*found)->trigger();
    ExpectFreeOfClashesInDialog(item);
  }
}

TEST_P(Mnemonics, AreEachFormsOwn) {
  for (const Form* form : Window().Control().Tessel().Forms()) {
    Window().Control().DialogFor(*form)->show();
    ExpectFreeOfClashesInDialog(form->Name().c_str());
  }
}

TEST_P(Mnemonics, LeadToWhatTheyBelongTo) {
  QApplication::setActiveWindow(&Window());
  OnPage(kPlayerPage);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_I, Qt::AltModifier);
  EXPECT_TRUE(Window().Control().WidgetFor(Run().Controls().lstPlayers)->hasFocus());
  OnPage(kWeaponPage);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_P, Qt::AltModifier);
  EXPECT_TRUE(Window().Control().WidgetFor(Run().Controls().lstWeapon)->hasFocus());
}

INSTANTIATE_TEST_SUITE_P(Language, Mnemonics, testing::Values("en", "de"),
                         [](const auto& language) { return std::string(language.param); });

}  // namespace
}  // namespace tessel::test
