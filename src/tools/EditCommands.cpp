#include "tools/EditCommands.h"

namespace tessel {

void Copy(const RichTextBox& editor, Clipboard& clipboard) {
  clipboard.Clear();
  clipboard.SetText(editor.SelText());
}

void Cut(RichTextBox& editor, Clipboard& clipboard) {
  Copy(editor, clipboard);
  editor.SetSelText("");
}

void Paste(RichTextBox& editor, Clipboard& clipboard) { editor.SetSelText(clipboard.GetText()); }

void UndoOnce(RichTextBox& editor, Focus& focus) {
  editor.Undo();
  editor.EmptyUndoBuffer();
  focus.MoveTo(editor);
}

void SelectAll(RichTextBox& editor) {
  editor.SetHideSelection(false);
  editor.SetSelStart(0);
  editor.SetSelLength(editor.Length());
}

void TransformSelection(RichTextBox& editor,
                        const std::function<std::string(std::string_view)>& tool) {
  editor.SetSelText(tool(editor.SelText()));
}

}  // namespace tessel
