#include "colouring/ColourCommand.h"

#include "colouring/Colouring.h"
#include "services/Hourglass.h"
#include "surface/ColourMode.h"
#include "surface/Parked.h"

namespace tessel {
namespace {

// Parked while it is painted, so that the changes do not mark the document as modified.
void ShowInPlainBlack(RichTextBox& editor) {
  const Parked parked(editor, Parked::Left::kInFront, Parked::Selection::kHidden);
  editor.SetSelLength(editor.Length());
  editor.SetSelColor(kBlack);
  editor.SetSelStart(0);
  SetColourMode(editor, ColourMode::kPlain);
}

}  // namespace

void ApplyColourMode(bool colorize, RichTextBox& editor, ScreenPointer& pointer,
                     const StatusText& status) {
  const Hourglass hourglass(pointer);
  colorize ? ColorizeDocument(editor, status) : ShowInPlainBlack(editor);
}

}  // namespace tessel
