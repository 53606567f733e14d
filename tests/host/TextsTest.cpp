// One rule for the words of the window: commands and titles have capitals and no stop; labels of
// boxes have one capital and a colon, switches one capital and nothing. What the control says is
// not the window's.
#include <QCheckBox>
#include <QLabel>
#include <algorithm>

#include "HostFixture.h"
#include "host/BackupsDialog.h"
#include "host/find/FindBar.h"
#include "host/help/AboutDialog.h"
#include "host/preferences/PreferencesDialog.h"

namespace tessel::test {
namespace {

QStringList WordsOf(QString text) {
  return text.remove('&').remove("...").split(' ', Qt::SkipEmptyParts);
}

bool MayBeSmall(const QString& word) {
  static const QStringList kSmall = {"a",  "and", "as", "at", "by",  "for", "from",
                                     "in", "of",  "on", "or", "the", "to",  "with"};
  return kSmall.contains(word) || !word.front().isLetter();
}

bool HasCapitals(const QString& text) {
  const QStringList words = WordsOf(text);
  return words.front().front().isUpper() && std::ranges::all_of(words, [](const QString& word) {
           return MayBeSmall(word) || word.front().isUpper();
         });
}

/// But for names, which are figures here.
bool HasOneCapital(const QString& text) {
  const QStringList words = WordsOf(text);
  return words.front().front().isUpper() &&
         std::none_of(words.begin() + 1, words.end(),
                      [](const QString& word) { return word.front().isUpper(); });
}

bool EndsAsASentence(const QString& text) { return text.endsWith('.') && !text.endsWith("..."); }

class Texts : public HostTest {
 protected:
  void ExpectOfParts(const QWidget& dialog) {
    for (const auto* label : dialog.findChildren<QLabel*>()) {
      if (label->buddy() == nullptr) continue;
      EXPECT_TRUE(label->text().endsWith(':')) << qPrintable(label->text());
    }
    for (const auto* box : dialog.findChildren<QCheckBox*>()) {
      EXPECT_TRUE(HasOneCapital(box->text())) << qPrintable(box->text());
      EXPECT_FALSE(box->text().endsWith(':')) << qPrintable(box->text());
    }
    for (const auto* button : dialog.findChildren<QPushButton*>()) {
      EXPECT_TRUE(button->text().isEmpty() || HasCapitals(button->text()))
          << qPrintable(button->text());
    }
  }
};

TEST_F(Texts, OfMenusHaveCapitalsAndNoStop) {
  int items = 0;
  for (const QAction* title : Run().window->menuBar()->actions()) {
    for (const QAction* action : title->menu()->actions()) {
      if (action->isSeparator() || action->text().isEmpty()) continue;
      EXPECT_TRUE(HasCapitals(action->text())) << qPrintable(action->text());
      EXPECT_FALSE(EndsAsASentence(action->text()) || action->text().endsWith(':'))
          << qPrintable(action->text());
      ++items;
    }
  }
  EXPECT_GT(items, 50);
}

TEST_F(Texts, OfDialogsFollowTheRule) {
  for (const char* item : {"Pr&eferences...", "&Backups...", "&About Zanth Manager"}) {
    Run().MenuItem(item)->trigger();
  }
  ExpectOfParts(*Run().window->findChild<PreferencesDialog*>());
  ExpectOfParts(*Run().window->findChild<BackupsDialog*>());
  ExpectOfParts(*Run().window->findChild<AboutDialog*>());
  ExpectOfParts(*Run().window->findChild<FindBar*>());
  for (const auto* dialog : Run().window->findChildren<QDialog*>()) {
    if (dialog->isVisible()) {
      EXPECT_TRUE(HasCapitals(dialog->windowTitle())) << qPrintable(dialog->windowTitle());
    }
  }
}

// The toolkit puts the same dash between a dialog's title and the program's name.
TEST_F(Texts, OfTitlesAreJoinedByOneKindOfDash) {
  Run().window->OpenFiles({directory_.Put("user.con", "")});
  EXPECT_EQ(Run().window->windowTitle(), QString("user.con[*] \u2014 Zanth Manager"));
}

}  // namespace
}  // namespace tessel::test
