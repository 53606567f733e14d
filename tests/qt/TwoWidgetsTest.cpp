// Two controls in one window, each with a desktop of its own, and one settings store.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <memory>
#include <numeric>
#include <random>

#include "drive/qt/EditorScreen.h"
#include "qt/TesselWidget.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "qt/services/QtDesktop.h"
#include "qt/views/TabStripView.h"
#include "qt/views/ToolbarView.h"
#include "support/PersonAtControl.h"
#include "words/ScriptWords.h"

namespace tessel::test {
namespace {

/// A control on real widgets. What asks a person is faked; the forms are, unless they are wanted.
struct Side {
  enum class Forms { kFaked, kReal };

  Side(SettingsStore& settings, QWidget* parent, Forms forms) {
    const Services s = desktop.With(settings, "/host", fakes.messages, fakes.files);
    ModalForms& modal = forms == Forms::kReal ? s.forms : static_cast<ModalForms&>(fakes.forms);
    widget = std::make_unique<TesselWidget>(
        Services{s.messages, fakes.fileDialogs, modal, s.clipboard, s.settings, s.pointer, s.files,
                 s.random, s.focus, s.loop, s.hostDirectory},
        desktop.widgets, parent);
  }

  ucTessel& Tessel() { return widget->Tessel(); }
  HostedControls& C() { return widget->Tessel().Controls(); }
  RichTextBox& Editor() { return CurrentEditor(C()); }
  ScintillaView& View() { return *widget->CurrentEditorView(); }
  template <class Widget>
  Widget& At(const Control& control) {
    return dynamic_cast<Widget&>(*widget->WidgetFor(control));
  }
  void Open(const std::string& path, const std::string& text) {
    fakes.files.files[path] = text;
    Tessel().OpenFile(path);
  }

  FakeServices fakes;
  QtDesktop desktop;
  std::unique_ptr<TesselWidget> widget;
};

/// What a side's widgets show.
std::vector<std::string> ShownBy(Side& side) {
  std::vector<std::string> shown;
  const auto add = [&shown](const QString& text) { shown.push_back(text.toStdString()); };
  ScintillaView& view = side.View();
  shown.push_back("text " + drive::EditorScreen(view).Text());
  add(QString("selection %1 to %2")
          .arg(view.SendScintilla(QsciScintillaBase::SCI_GETSELECTIONSTART))
          .arg(view.SendScintilla(QsciScintillaBase::SCI_GETSELECTIONEND)));
  for (const TabStrip* strip : {&side.C().tbsCon, &side.C().tbsRtb}) {
    const auto& bar = side.At<QTabBar>(*strip);
    for (int tab = 0; tab < bar.count(); ++tab) add("tab " + bar.tabText(tab));
    add(QString("tab %1").arg(bar.currentIndex()));
  }
  for (const QAction* action : side.widget->findChildren<QAction*>()) {
    add(QString("%1 %2 %3 %4")
            .arg(action->objectName(), action->text())
            .arg(action->isChecked())
            .arg(action->isEnabled()));
  }
  for (const QLineEdit* box : side.widget->findChildren<QLineEdit*>()) add("box " + box->text());
  for (const Control* control : side.C().all.All()) {
    const QWidget* part = side.widget->WidgetFor(*control);
    if (part == nullptr || part->isWindow()) continue;  // of all menus one is open at most
    shown.push_back(control->Name() + (part->isHidden()    ? " hidden"
                                       : part->isEnabled() ? " usable"
                                                           : " disabled"));
  }
  return shown;
}

class TwoWidgets : public testing::Test {
 protected:
  explicit TwoWidgets(Side::Forms forms = Side::Forms::kReal) {
    for (SettingsStore* store : {&settings_, &othersSettings_}) {
      WriteScriptWord(*store, {"cactor", "[new actor]"});
      WriteScriptWord(*store, {"move", "[moveflags]"});
    }
    first_ = std::make_unique<Side>(settings_, &window_, forms);
    second_ = std::make_unique<Side>(settings_, &window_, forms);
    window_.resize(1700, 700);
    first_->widget->setGeometry(0, 0, 850, 700);
    second_->widget->setGeometry(850, 0, 850, 700);
    window_.show();
    QApplication::setActiveWindow(&window_);
    QApplication::processEvents();
  }

  /// What a click into its editor does; also when a dialog was the active window before.
  void GoTo(Side& side) {
    QApplication::setActiveWindow(&window_);
    side.View().setFocus();
    ASSERT_TRUE(side.View().hasFocus());
  }

  MemorySettingsStore settings_;
  MemorySettingsStore othersSettings_;
  QWidget window_;
  std::unique_ptr<Side> first_;
  std::unique_ptr<Side> second_;
};

// --- Everything that a person can do

class TwoWidgetsAndPeople : public TwoWidgets {
 protected:
  TwoWidgetsAndPeople() : TwoWidgets(Side::Forms::kFaked) {
    alone_ = std::make_unique<Side>(othersSettings_, &othersWindow_, Side::Forms::kFaked);
    othersWindow_.resize(850, 700);
    alone_->widget->setGeometry(0, 0, 850, 700);
    othersWindow_.show();
    QApplication::processEvents();
  }

  QWidget othersWindow_;
  std::unique_ptr<Side> alone_;
};

TEST_F(TwoWidgetsAndPeople, EachDoesAndShowsWhatItDoesAndShowsAlone) {
  std::vector<std::size_t> deeds(Person::Deeds().size());
  std::iota(deeds.begin(), deeds.end(), 0U);
  Person first(first_->Tessel(), first_->fakes, "/mine");
  Person second(second_->Tessel(), second_->fakes, "/others");
  Person alone(alone_->Tessel(), alone_->fakes, "/mine");
  std::mt19937 order(1996);
  for (int time = 0; time < 6; ++time) {
    auto others = deeds;
    std::ranges::shuffle(deeds, order);
    std::ranges::shuffle(others, order);
    for (std::size_t i = 0; i < deeds.size(); ++i) {
      const Person::Deed& deed = Person::Deeds()[deeds[i]];
      if (deed.ofTheServices) continue;  // there is one clipboard, and the numbers run on
      first.Do(deeds[i]);
      alone.Do(deeds[i]);
      second.Do(others[i]);
      ASSERT_EQ(first.State(), alone.State()) << deed.name;
    }
    QApplication::processEvents();
    const auto shown = ShownBy(*first_);
    const auto wanted = ShownBy(*alone_);
    ASSERT_EQ(shown.size(), wanted.size());
    for (std::size_t i = 0; i < shown.size(); ++i) ASSERT_EQ(shown[i], wanted[i]);
  }
  EXPECT_EQ(first.Heard(), alone.Heard());
  EXPECT_EQ(first_->fakes.messages.shown, alone_->fakes.messages.shown);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// --- Gestures at the widgets

TEST_F(TwoWidgets, TypingAndUndoGoToTheOneWithTheFocus) {
  for (Side* side : {first_.get(), second_.get()}) side->Open("/a.con", "old");
  GoTo(*first_);
  QTest::keyClicks(&first_->View(), "one ");
  GoTo(*second_);
  QTest::keyClicks(&second_->View(), "two ");
  EXPECT_EQ(first_->Editor().Text(), "one old");
  EXPECT_EQ(second_->Editor().Text(), "two old");
  GoTo(*first_);
  QTest::keyClick(&first_->View(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(first_->Editor().Text(), "old");
  EXPECT_EQ(second_->Editor().Text(), "two old");
  EXPECT_EQ(drive::EditorScreen(second_->View()).Text(), "two old");
  EXPECT_TRUE(second_->Editor().CanUndo());
}

TEST_F(TwoWidgets, F3GoesOnInTheOneWithTheFocus) {
  for (Side* side : {first_.get(), second_.get()}) {
    side->Open("/a.con", "define A\r\ndefine B\r\n");
    auto& find = dynamic_cast<frmFind&>(*side->Tessel().Forms()[0]);
    QTimer::singleShot(0, side->widget.get(), [side, &find, this] {
      find.cboFind.Type(side == first_.get() ? "define" : "B");
      find.cmdFind.Press();
    });
    GoTo(*side);
    QTest::keyClick(&side->View(), Qt::Key_F, Qt::ControlModifier);
  }
  EXPECT_EQ(first_->Editor().SelStart(), 0);
  EXPECT_EQ(second_->Editor().SelText(), "B");
  GoTo(*first_);
  QTest::keyClick(&first_->View(), Qt::Key_F3);
  EXPECT_EQ(first_->Editor().SelStart(), 10);
  EXPECT_EQ(second_->Editor().SelStart(), 17);
}

TEST_F(TwoWidgets, F6StaysInside) {
  GoTo(*second_);
  for (int part = 0; part < 5; ++part) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    EXPECT_TRUE(second_->widget->isAncestorOf(QApplication::focusWidget()));
  }
}

TEST_F(TwoWidgets, TheFocusStaysWhenAPartGoesOutOfSight) {
  first_->C().tbsCon.Press(5);  // a box there takes what it gets the focus for
  second_->C().tbsCon.Press(6);
  const auto inSecond = [&] {
    const QWidget* focused = QApplication::focusWidget();
    return focused != nullptr &&
           (focused == second_->widget.get() || second_->widget->isAncestorOf(focused));
  };
  second_->At<QWidget>(second_->C().txtSearch).setFocus();
  second_->C().tbsCon.Press(1);
  EXPECT_TRUE(inSecond());
  second_->At<QWidget>(second_->C().lstPlayers).setFocus();
  second_->C().tbToolBar.Press("ShowTabs");
  EXPECT_TRUE(inSecond());
  GoTo(*second_);
  second_->Open("/a.con", "a");
  second_->Open("/b.con", "b");
  second_->Tessel().CloseAll();
  EXPECT_TRUE(inSecond());
}

TEST_F(TwoWidgets, TogglesAndTabsAreEachItsOwn) {
  const auto click = [](Side& side, const char* key) {
    side.At<ToolbarView>(side.C().tbToolBar).ActionOf(key)->trigger();
  };
  const auto checked = [](Side& side, const char* key) {
    return side.At<ToolbarView>(side.C().tbToolBar).ActionOf(key)->isChecked();
  };
  first_->Open("/a.con", "define A 1");
  second_->Open("/a.con", "define A 1");
  click(*first_, "Colorize");
  click(*second_, "ShowTabs");
  EXPECT_FALSE(checked(*first_, "Colorize"));
  EXPECT_TRUE(checked(*second_, "Colorize"));
  EXPECT_TRUE(checked(*first_, "ShowTabs"));
  EXPECT_FALSE(checked(*second_, "ShowTabs"));
  EXPECT_EQ(first_->Editor().Store().Runs(0, 10).size(), 1U);
  EXPECT_GT(second_->Editor().Store().Runs(0, 10).size(), 1U);
  EXPECT_TRUE(first_->At<QWidget>(first_->C().lstPlayers).isVisible());
  EXPECT_FALSE(second_->At<QWidget>(second_->C().lstPlayers).isVisible());

  auto& bar = first_->At<QTabBar>(first_->C().tbsCon);
  QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(2).center());
  EXPECT_EQ(first_->C().tbsCon.Selected(), 3);
  EXPECT_EQ(second_->C().tbsCon.Selected(), 1);
}

TEST_F(TwoWidgets, SignalsComeFromTheirOwnControl) {
  QStringList first;
  QStringList second;
  QObject::connect(first_->widget.get(), &TesselWidget::statusText, &window_,
                   [&](const QString& text) { first += text; });
  QObject::connect(second_->widget.get(), &TesselWidget::statusText, &window_,
                   [&](const QString& text) { second += text; });
  QObject::connect(second_->widget.get(), &TesselWidget::documentChanged, &window_,
                   [&] { second += "changed"; });
  first_->Open("/a.con", "define A 1");
  EXPECT_EQ(first.size(), 2);
  EXPECT_EQ(second, QStringList());
}

// --- A dialog of one is open

/// Presses the button of the first form as soon as that is open, after `meanwhile`.
void AtOpenForm(Side& side, const std::function<void()>& meanwhile) {
  auto& find = dynamic_cast<frmFind&>(*side.Tessel().Forms()[0]);
  QTimer::singleShot(0, side.widget.get(), [&side, &find, meanwhile] {
    ASSERT_TRUE(find.Visible());
    meanwhile();
    auto& button = side.At<QPushButton>(find.cmdFind);
    find.cboFind.Type("define");
    QTest::mouseClick(&button, Qt::LeftButton);
  });
}

TEST_F(TwoWidgets, TheHostUsesOneWhileAFormOfTheOtherIsOpen) {
  first_->Open("/a.con", "define A 1");
  AtOpenForm(*first_, [&] {
    EXPECT_EQ(QApplication::activeModalWidget(),
              first_->widget->DialogFor(*first_->Tessel().Forms()[0]));
    second_->Open("/b.con", UserCon());
    second_->Tessel().Convert();
    EXPECT_FALSE(second_->Tessel().Running());
    EXPECT_FALSE(second_->Tessel().Forms()[0]->Visible());
  });
  first_->C().tbToolBar.Press("Find");
  EXPECT_EQ(first_->Editor().SelText(), "define");
  EXPECT_NE(second_->Editor().Text(), UserCon());
  EXPECT_EQ(second_->C().tbsRtb.At(1).image, kRedDot);
  EXPECT_EQ(first_->C().tbsRtb.At(1).image, kBlackDot);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(TwoWidgets, OneGoesWhileAFormOfTheOtherIsOpen) {
  first_->Open("/a.con", "define A 1");
  AtOpenForm(*first_, [&] { second_.reset(); });
  first_->C().tbToolBar.Press("Find");
  EXPECT_EQ(first_->Editor().SelText(), "define");
  GoTo(*first_);
  QTest::keyClicks(&first_->View(), "still");
  EXPECT_EQ(first_->Editor().Text(), "still A 1");
}

TEST_F(TwoWidgets, EitherStaysWhenTheOtherGoes) {
  GoTo(*second_);
  first_.reset();
  QApplication::processEvents();
  QTest::keyClicks(&second_->View(), "here");
  EXPECT_EQ(second_->Editor().Text(), "here");
  EXPECT_TRUE(second_->View().hasFocus());
  QTest::keyClick(&second_->View(), Qt::Key_F6);
  second_->C().tbToolBar.Press("ShowTabs");
  second_->Tessel().Convert();
  EXPECT_EQ(second_->fakes.messages.shown.size(), 1U);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(TwoWidgets, AnHourglassOfOneOutlastsTheOther) {
  first_->desktop.pointer.SetShape(PointerShape::kHourglass);
  second_->desktop.pointer.SetShape(PointerShape::kHourglass);
  second_.reset();
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(first_->desktop.pointer.Shape(), PointerShape::kHourglass);
  first_->desktop.pointer.SetShape(PointerShape::kDefault);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace tessel::test
