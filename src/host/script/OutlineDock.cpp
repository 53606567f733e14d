#include "host/script/OutlineDock.h"

#include <QCloseEvent>
#include <QSettings>

#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

constexpr const char* kShownKey = "outline/shown";
constexpr const char* kWidthKey = "outline/width";
constexpr int kUsualWidth = 240;

}  // namespace

OutlineDock::OutlineDock(const Uses& uses, QMainWindow& window)
    : QDockWidget(tr("Outline"), &window),
      uses_(uses),
      window_(window),
      pane_(new OutlinePane(this)) {
  setObjectName("outline");
  setFeatures(DockWidgetClosable);
  setAllowedAreas(Qt::RightDockWidgetArea);
  setWidget(pane_);
  window_.addDockWidget(Qt::RightDockWidgetArea, this);
  hide();
  connect(pane_, &OutlinePane::chosen, this, &OutlineDock::GoTo);
  connect(pane_, &OutlinePane::left, this,
          [this] { uses_.control.CurrentEditorView()->setFocus(Qt::OtherFocusReason); });
  connect(&uses_.control, &TesselWidget::caretMoved, this, &OutlineDock::MarkCaret);
  subscriptions_ = {
      uses_.reader.Read.Connect([this](Slot slot, const language::Structure& structure) {
        if (!isHidden()) ShowEntries(slot, structure);
      }),
      uses_.scripts.Changed.Connect([this](Slot slot, const ChangedRange& change) {
        if (slot == slot_) pane_->Changed(change);
      }),
  };
}

void OutlineDock::SetShown(bool shown) {
  QSettings().setValue(kShownKey, shown);
  if (shown != isHidden()) return;
  setVisible(shown);
  if (shown) {
    window_.resizeDocks({this}, {QSettings().value(kWidthKey, kUsualWidth).toInt()},
                        Qt::Horizontal);
  }
  using enum StructureReader::Wish;
  uses_.reader.SetWish(this, shown ? kSymbolsToo : kNothing);
  emit shownChanged(shown);
}

void OutlineDock::RestoreLook() { SetShown(QSettings().value(kShownKey, false).toBool()); }

void OutlineDock::closeEvent(QCloseEvent* event) {
  event->ignore();
  SetShown(false);
}

void OutlineDock::resizeEvent(QResizeEvent* event) {
  QDockWidget::resizeEvent(event);
  if (isVisible()) QSettings().setValue(kWidthKey, width());
}

void OutlineDock::ShowEntries(Slot slot, const language::Structure& structure) {
  slot_ = slot;
  const RichTextBox& editor = uses_.control.Tessel().OpenDocuments().At(slot).Editor();
  pane_->SetEntries(OutlineOf(uses_.scripts.Of(slot), structure.symbols), editor.SelStart());
}

// What is listed may be a moment older than the text.
void OutlineDock::GoTo(const OutlineEntry& entry) {
  const auto& documents = uses_.control.Tessel().OpenDocuments();
  if (Index(slot_) >= documents.Count()) return;
  const std::string_view text = documents.At(slot_).Editor().Bytes();
  if (entry.name.end > std::ssize(text)) return;
  const std::string_view name = language::Slice(text, entry.name);
  const bool same = entry.text.starts_with(name) && name.empty() == entry.text.empty();
  if (same) uses_.navigator.GoTo(slot_, entry.name);
}

void OutlineDock::MarkCaret() {
  const Document document = uses_.control.Tessel().OpenDocuments().Current();
  if (isHidden() || document.Place() != slot_) return;
  pane_->MarkCaret(document.Editor().SelStart());
}

}  // namespace tessel
