#include "qt/TesselWidget.h"

#include <QApplication>
#include <QChildEvent>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <iterator>

#include "qt/KeyCodes.h"
#include "qt/base/QtText.h"
#include "qt/base/TwipScale.h"
#include "qt/editor/EditorHost.h"
#include "qt/editor/ScintillaView.h"
#include "qt/looks/Theme.h"
#include "qt/panel/Forms.h"
#include "qt/panel/SettingsPages.h"
#include "qt/views/PopupMenuView.h"
#include "qt/views/TabStripView.h"
#include "qt/views/ToolbarView.h"

namespace tessel {
namespace {

// The design's size of the control.
constexpr Twips kDesignWidth = 12000;
constexpr Twips kDesignHeight = 9000;

/// Keys that may be commands of the control, by their Qt codes.
bool IsControlKey(const QKeyEvent& key) {
  return key.key() == Qt::Key_F3 ||
         (key.key() == Qt::Key_F && key.modifiers() == Qt::ControlModifier);
}

}  // namespace

TesselWidget::TesselWidget(const Services& services, WidgetMap& widgets, QWidget* parent,
                           const ucTessel::Options& options)
    : QWidget(parent),
      widgets_(widgets),
      clipboard_(services.clipboard),
      tessel_(std::make_unique<ucTessel>(services, options)) {
  setAccessibleName(tr("CON file editor"));
  BuildPanel();
  BuildDocuments();
  BuildForms();
  WatchKeys(*this);
  subscriptions_.push_back(tessel_->SettingTextColor.Connect(
      [this](const std::string& text) { emit statusText(ShownName(text)); }));
  tessel_->Initialize();
  resize(sizeHint());
  CurrentEditorView()->setFocus();
}

// Views go before their models, and not while one of them has the focus: the toolkit would pass it
// on from one to the next.
TesselWidget::~TesselWidget() {
  if (QWidget* focused = QApplication::focusWidget(); focused != nullptr && isAncestorOf(focused)) {
    focused->clearFocus();
  }
  subscriptions_.clear();
  const QObjectList views = children();
  for (QObject* view : views) delete view;
  for (const Control* control : tessel_->Controls().all.All()) widgets_.Remove(*control);
  for (const Form* form : tessel_->Forms()) {
    for (const Control* control : form->controls.All()) widgets_.Remove(*control);
  }
}

void TesselWidget::FollowGeometry(Control& control, QWidget& view) {
  const auto place = [&control, &view] {
    if (control.Left() > kParkedLeft) view.setGeometry(PixelGeometry(control, view));
  };
  subscriptions_.push_back(control.Refresh.Connect(place));
  place();
}

void TesselWidget::BuildPanel() {
  HostedControls& c = tessel_->Controls();
  auto* toolbar = new ToolbarView(c.tbToolBar, this);
  toolbar->setAccessibleName(tr("Toolbar"));
  widgets_.Add(c.tbToolBar, toolbar);
  FollowGeometry(c.tbToolBar, *toolbar);

  auto* categories = new TabStripView(c.tbsCon, QTabBar::RoundedNorth, this);
  categories->Bar()->setAccessibleName(tr("Settings categories"));
  widgets_.Add(c.tbsCon, categories->Bar());
  FollowGeometry(c.tbsCon, *categories);
  for (int page = 0; page < kSettingsPages; ++page) {
    auto* view = MakeSettingsPage(c, static_cast<SettingsPage>(page), widgets_, this);
    view->setAccessibleName(ShownText(c.tbsCon.At(page + 1).caption));
  }
}

void TesselWidget::BuildDocuments() {
  HostedControls& c = tessel_->Controls();
  auto* strip = new TabStripView(c.tbsRtb, QTabBar::RoundedSouth, this);
  strip->Bar()->setAccessibleName(tr("Documents"));
  widgets_.Add(c.tbsRtb, strip->Bar());
  FollowGeometry(c.tbsRtb, *strip);
  subscriptions_.push_back(c.tbsRtb.Refresh.Connect([this] { emit documentChanged(); }));

  editorHost_ = new EditorHost(this);
  editorHost_->setAccessibleName(tr("Editor area"));
  widgets_.Add(c.picRtb, editorHost_);
  FollowGeometry(c.picRtb, *editorHost_);
  for (int i = 0; i < c.rtbCon.Count(); ++i) AddEditor(c.rtbCon[i]);
  subscriptions_.push_back(
      c.rtbCon.Loaded.Connect([this](RichTextBox& editor) { AddEditor(editor); }));
  subscriptions_.push_back(
      c.rtbCon.Unloading.Connect([this](RichTextBox& editor) { RemoveEditor(editor); }));

  auto* popup = new PopupMenuView(
      c.mnuRtbPopup,
      [this] {
        const ScintillaView* view = CurrentEditorView();
        return view == nullptr ? QCursor::pos() : view->popupPosition();
      },
      this);
  popup->setAccessibleName(tr("Editor menu"));
  widgets_.Add(c.mnuRtbPopup, popup);
}

void TesselWidget::BuildForms() {
  for (Form* form : tessel_->Forms()) dialogs_.push_back(MakeFormDialog(*form, widgets_, this));
}

void TesselWidget::AddEditor(RichTextBox& editor) {
  auto* view = new ScintillaView(editor, clipboard_, editorHost_->Inside());
  view->setAccessibleName(tr("Editor"));
  widgets_.Add(editor, view);
  connect(view, &ScintillaView::textRefused, this, &TesselWidget::textRefused);
  connect(view, &QsciScintillaBase::SCN_UPDATEUI, this, &TesselWidget::caretMoved);
  const auto place = [this, &editor, view] { editorHost_->Place(*view, editor); };
  editors_.push_back({view, editor.Refresh.Connect(place)});
  place();
}

void TesselWidget::RemoveEditor(RichTextBox& editor) {
  ScintillaView* view = editors_.back().view;
  editorHost_->Release(*view);
  widgets_.Remove(editor);
  editors_.pop_back();
  delete view;
}

void TesselWidget::SetTesselVersion(QString& version, QString& defaultVersion) {
  std::string versionBytes = version.toStdString();
  std::string defaultBytes = defaultVersion.toStdString();
  tessel_->SetTesselVersion(versionBytes, defaultBytes);
  version = QString::fromStdString(versionBytes);
  defaultVersion = QString::fromStdString(defaultBytes);
}

QWidget* TesselWidget::DialogFor(const Form& form) const {
  const auto it = std::ranges::find_if(
      dialogs_, [&](const FormDialog* dialog) { return &dialog->Model() == &form; });
  return it == dialogs_.end() ? nullptr : *it;
}

void TesselWidget::ShowAboveText(QWidget& bar) { editorHost_->ShowAbove(bar); }

ScintillaView* TesselWidget::CurrentEditorView() const {
  const int slot = Index(tessel_->OpenDocuments().Current().Place());
  return slot >= 0 && slot < std::ssize(editors_) ? editors_[static_cast<std::size_t>(slot)].view
                                                  : nullptr;
}

QSize TesselWidget::sizeHint() const {
  return {TwipsToPixels(kDesignWidth, logicalDpiX()), TwipsToPixels(kDesignHeight, logicalDpiY())};
}

QSize TesselWidget::minimumSizeHint() const {
  return {TwipsToPixels(kDesignWidth * 0.5, logicalDpiX()),
          TwipsToPixels(kDesignHeight * 0.4, logicalDpiY())};
}

void TesselWidget::resizeEvent(QResizeEvent*) {
  tessel_->Resize(PixelsToTwips(width(), logicalDpiX()), PixelsToTwips(height(), logicalDpiY()));
}

void TesselWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
}

// --- Keys: the control receives them before its parts do

void TesselWidget::WatchKeys(QObject& object) {
  if (!object.isWidgetType()) return;
  object.removeEventFilter(this);
  object.installEventFilter(this);
  for (QObject* child : object.children()) WatchKeys(*child);
}

bool TesselWidget::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ChildAdded) {
    WatchKeys(*static_cast<QChildEvent*>(event)->child());
    return false;
  }
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) return false;
  if (!watched->isWidgetType() || static_cast<QWidget*>(watched)->window() != window())
    return false;

  const auto& key = *static_cast<QKeyEvent*>(event);
  if (event->type() == QEvent::KeyPress) return TakeKey(key);
  // The control's own keys are no shortcuts of the window around it.
  if (!IsControlKey(key)) return false;
  event->accept();
  return true;
}

bool TesselWidget::TakeKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  if (event.key() == Qt::Key_F6 && !(modifiers & ~Qt::ShiftModifier)) {
    MoveToNextPart(!(modifiers & Qt::ShiftModifier));
    return true;
  }
  const int code = KeyCodeOf(event.key());
  if (code == 0) return false;
  const bool swallowed = tessel_->KeyDown(code, ShiftMaskOf(modifiers));
  // A key that nobody takes comes by again at each parent of its first receiver: a command that has
  // run once is over.
  return swallowed || IsControlKey(event);
}

// From part to part: the editor, which keeps the Tab key for itself, can be left this way.
void TesselWidget::MoveToNextPart(bool forward) {
  const HostedControls& c = tessel_->Controls();
  const auto* toolbar = qobject_cast<ToolbarView*>(widgets_.Find(c.tbToolBar));
  std::vector<QWidget*> parts = {toolbar->widgetForAction(toolbar->actions().first()),
                                 widgets_.Find(c.tbsCon), CurrentEditorView(),
                                 widgets_.Find(c.tbsRtb)};
  std::erase_if(parts, [](const QWidget* part) {
    return part == nullptr || !part->isVisible() || !part->isEnabled();
  });
  if (parts.empty()) return;
  if (!forward) std::ranges::reverse(parts);
  const QWidget* focused = QApplication::focusWidget();
  const auto inPart = [focused](const QWidget* part) {
    return focused == part || (focused != nullptr && part->parentWidget()->isAncestorOf(focused));
  };
  auto it = std::ranges::find_if(parts, inPart);
  it = it == parts.end() || std::next(it) == parts.end() ? parts.begin() : std::next(it);
  (*it)->setFocus(Qt::TabFocusReason);
}

}  // namespace tessel
