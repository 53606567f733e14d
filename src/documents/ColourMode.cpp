#include "documents/ColourMode.h"

#include "colouring/Colouring.h"
#include "documents/DocumentSlots.h"
#include "services/ScopeGuard.h"

namespace tessel {
namespace {

// Parked while it is painted, so that the changes do not mark the document as modified.
void ShowInPlainBlack(RichTextBox& editor) {
  editor.SetVisible(false);
  editor.SetLeft(kParkedLeft);
  editor.SetHideSelection(true);
  editor.SetSelStart(0);
  editor.SetSelLength(editor.Length());
  editor.SetSelColor(kBlack);
  editor.SetSelStart(0);
  editor.SetSelLength(0);
  editor.SetHideSelection(false);
  editor.SetLeft(0);
  editor.SetTag(kPlainMode);
  editor.SetVisible(true);
}

}  // namespace

void ApplyColourMode(HostedControls& controls, ScreenPointer& pointer, const StatusText& status) {
  const Hourglass hourglass(pointer);
  if (controls.tbToolBar.Pressed("Colorize")) {
    ColorizeDocument(CurrentEditor(controls), status);
  } else {
    ShowInPlainBlack(CurrentEditor(controls));
  }
}

}  // namespace tessel
