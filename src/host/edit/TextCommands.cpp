#include "host/edit/TextCommands.h"

#include <QInputDialog>

#include "host/edit/CommentLines.h"
#include "qt/base/RoomForTitle.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

class TextCommands : public QObject {
  Q_DECLARE_TR_FUNCTIONS(TextCommands)
};

/// An edit of the current document by its user; refused, with its reason, where the text is for
/// reading.
template <class Edit>
bool EditByUser(TesselWidget& control, Edit edit) {
  ScintillaView* view = control.CurrentEditorView();
  if (control.Tessel().Running() || view == nullptr) return false;
  if (const auto& reading = view->CurrentReading()) {
    emit control.textRefused(reading->why);
    return false;
  }
  RichTextBox& editor = control.Tessel().OpenDocuments().CurrentEditor();
  const RichTextBox::Gesture gesture(editor, false);
  return edit(editor);
}

}  // namespace

bool ToggleCommentLines(TesselWidget& control) {
  return EditByUser(control, [](RichTextBox& editor) {
    const auto [start, length, text] =
        ToggleComments(editor.Bytes(), editor.SelStart(), editor.SelLength());
    const bool caretOnly = editor.SelLength() == 0;
    const Position fromEnd = start + length - editor.SelEnd();
    if (editor.Bytes().substr(start, length) == text) return false;
    editor.EditByHand(start, length, text);
    const Position end = start + std::ssize(text);
    if (caretOnly) {
      editor.SelectByHand(std::max(start, end - fromEnd), 0);
    } else {
      editor.SelectByHand(start, std::ssize(text));
    }
    return true;
  });
}

void AskForLine(TesselWidget& control) {
  const ScintillaView* view = control.CurrentEditorView();
  if (view == nullptr) return;
  const auto lines = static_cast<int>(view->SendScintilla(Sci::SCI_GETLINECOUNT));
  const long caret = view->SendScintilla(Sci::SCI_GETCURRENTPOS);
  auto* dialog = new QInputDialog(control.window());
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(TextCommands::tr("Go to Line"));
  dialog->setLabelText(TextCommands::tr("&Line, 1 to %1:").arg(lines));
  dialog->setInputMode(QInputDialog::IntInput);
  dialog->setIntRange(1, lines);
  dialog->setIntValue(static_cast<int>(view->SendScintilla(Sci::SCI_LINEFROMPOSITION, caret)) + 1);
  dialog->setOkButtonText(TextCommands::tr("&Go"));
  QObject::connect(dialog, &QInputDialog::intValueSelected, &control,
                   [&control](int line) { GoToLine(control, line); });
  KeepRoomForTitle(*dialog);
  dialog->open();
}

void GoToLine(TesselWidget& control, int line) {
  ScintillaView* view = control.CurrentEditorView();
  if (control.Tessel().Running() || view == nullptr) return;
  const auto at =
      view->SendScintilla(Sci::SCI_POSITIONFROMLINE, static_cast<unsigned long>(line - 1));
  const auto last = view->SendScintilla(Sci::SCI_GETLENGTH);
  const Position offset = view->mirror().OffsetOf(at < 0 ? last : at);
  control.Tessel().OpenDocuments().CurrentEditor().SelectByHand(offset, 0);
  view->SendScintilla(Sci::SCI_SCROLLCARET);
  view->setFocus();
}

}  // namespace tessel
