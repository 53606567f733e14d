#include "host/second/SecondView.h"

#include <QSettings>
#include <algorithm>

#include "host/view/EditorLooks.h"
#include "qt/base/QtText.h"

namespace tessel {
namespace {

constexpr const char* kWidthKey = "second/width";

QString TitleOf(const Document& document) {
  return document.Name().empty() ? SecondView::tr("Empty Document") : ShownName(document.Name());
}

}  // namespace

SecondView::SecondView(TesselWidget& control, QSplitter& splitter, MainMenu& menu,
                       Preferences& preferences)
    : QObject(&splitter),
      control_(control),
      splitter_(splitter),
      list_(menu.SubMenu(WindowCommand::kSecondView)),
      preferences_(preferences),
      documents_(control.Tessel().OpenDocuments()),
      pane_(new SecondPane([&control] { return control.Tessel().Running(); }, &splitter)) {
  splitter_.addWidget(pane_);
  splitter_.setChildrenCollapsible(false);
  splitter_.setStretchFactor(0, 1);
  pane_->hide();
  QAction& action = menu.Action(WindowCommand::kSecondView);
  action.setEnabled(true);
  connect(&action, &QAction::triggered, this, &SecondView::Step);
  connect(&list_, &QMenu::aboutToShow, this, &SecondView::FillMenu);
  ListenToPane();
  ListenToDocuments();
  ApplyWish(std::nullopt);
}

void SecondView::ListenToPane() {
  SecondText& text = pane_->Text();
  connect(pane_, &SecondPane::closeWanted, this, &SecondView::Close);
  connect(&text, &SecondText::left, this, &SecondView::GoToEditor);
  connect(&text, &SecondText::focused, this, &SecondView::SelectTab);
  connect(&text, &SecondText::editRefused, this, [this] {
    emit said(tr("The second view is for reading. Type into the text beside it."));
  });
  connect(&splitter_, &QSplitter::splitterMoved, this,
          [this] { QSettings().setValue(kWidthKey, pane_->width()); });
}

void SecondView::ListenToDocuments() {
  subscriptions_ = {
      documents_.AboutToDrop.Connect([this](const Document& document) { Dropped(document); }),
      documents_.Loaded.Connect([this](const Document& document) { Loaded(document); }),
      documents_.Moved.Connect([this](Slot from, Slot to) { Moved(from, to); }),
      control_.Tessel().Controls().tbsRtb.Refresh.Connect([this] { ShowTitle(); }),
      preferences_.Changed.Connect([this](Wish wish) { ApplyWish(wish); }),
  };
}

// --- By its user

void SecondView::FillMenu() {
  list_.clear();
  const auto add = [this](const QString& text, bool checked) {
    QAction* action = list_.addAction(text);
    action->setCheckable(true);
    action->setChecked(checked);
    return action;
  };
  connect(add(tr("&None"), !slot_), &QAction::triggered, this, &SecondView::Close);
  list_.addSeparator();
  for (const Document& document : documents_.All()) {
    const Slot slot = document.Place();
    connect(add(WithoutMnemonics(TitleOf(document)), slot == slot_), &QAction::triggered, this,
            [this, slot] { Show(slot); });
  }
}

void SecondView::Step() {
  if (!slot_) return Show(documents_.Current().Place());
  pane_->Text().hasFocus() ? GoToEditor() : pane_->Text().setFocus(Qt::ShortcutFocusReason);
}

void SecondView::Show(Slot slot) {
  if (control_.Tessel().Running() || Index(slot) >= documents_.Count() || slot == slot_) return;
  Attach(slot);
  ShowPane();
  pane_->Text().ScrollTo(0);
}

void SecondView::Close() {
  if (pane_->isAncestorOf(pane_->window()->focusWidget())) GoToEditor();
  slot_.reset();
  pane_->hide();
  pane_->Text().Show(nullptr);
}

void SecondView::GoToEditor() {
  if (QWidget* view = control_.CurrentEditorView()) view->setFocus(Qt::OtherFocusReason);
}

void SecondView::SelectTab() {
  if (!slot_ || control_.Tessel().Running() || documents_.Current().Place() == *slot_) return;
  documents_.Select(*slot_);
}

// --- What is shown

void SecondView::Attach(Slot slot) {
  slot_ = slot;
  pane_->Text().Show(
      qobject_cast<ScintillaView*>(control_.WidgetFor(documents_.At(slot).Editor())));
  ShowTitle();
}

void SecondView::ShowPane() {
  if (!pane_->isHidden()) return;
  pane_->show();
  const int whole = splitter_.width();
  const int width = QSettings().value(kWidthKey, whole / 2).toInt();
  splitter_.setSizes({whole - width, width});
}

void SecondView::ShowTitle() {
  if (!slot_ || Index(*slot_) >= documents_.Count()) return;
  const Document document = documents_.At(*slot_);
  const std::string path = document.Path();
  const QString name = tr("%1 (second view)").arg(TitleOf(document));
  pane_->SetTitle(name, path.empty() ? name : ShownName(path));
}

void SecondView::ApplyWish(std::optional<Wish> wish) {
  SecondText& text = pane_->Text();
  if (!wish || wish == Wish::kFont || wish == Wish::kFontSize) {
    text.SetTextFont(QString::fromStdString(preferences_.Text(Wish::kFont)),
                     preferences_.Number(Wish::kFontSize));
  }
  ApplyLooks(text, preferences_);
}

// --- What becomes of the document

// One that is read from its file again goes and comes back.
void SecondView::Dropped(const Document& document) {
  reloading_.reset();
  if (document.Place() != slot_) return;
  topLine_ = pane_->Text().TopLine();
  if (!document.Path().empty()) reloading_.emplace(document.Place(), document.Path());
  Close();
}

void SecondView::Loaded(const Document& document) {
  if (reloading_ == std::pair(document.Place(), document.Path())) {
    Attach(document.Place());
    ShowPane();
    pane_->Text().ScrollTo(topLine_);
  }
  reloading_.reset();
}

void SecondView::Moved(Slot from, Slot to) {
  if (slot_ != from) return;
  const long top = pane_->Text().TopLine();
  Attach(to);
  pane_->Text().ScrollTo(top);
}

}  // namespace tessel
