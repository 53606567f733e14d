#include "drive/HeadlessPlayer.h"

#include "drive/IndentLines.h"

namespace tessel::drive {
namespace {

constexpr int kReturnKey = 13;
constexpr int kEscapeKey = 27;

}  // namespace

ucTessel& HeadlessPlayer::Open(const Services& services) {
  control_ = std::make_unique<ucTessel>(services);
  control_->Initialize();
  return *control_;
}

void HeadlessPlayer::PressMenuItem(Toolbar& toolbar, const std::string& key, int item) {
  toolbar.PressMenuItem(key, item);
}

void HeadlessPlayer::Type(RichTextBox& editor, const std::string& text) {
  if (text == "\t" && SelectsOverLines(editor)) return IndentLines(editor);
  editor.Type(text);
}

void HeadlessPlayer::SelectText(RichTextBox& editor, SelectedRange range) {
  editor.SelectByHand(range.start, range.length);
}

void HeadlessPlayer::ReleaseMouse(RichTextBox& editor, MouseButton button) {
  editor.ReleaseMouse(button);
}

void HeadlessPlayer::Enter(Control& control) {
  if (auto* box = dynamic_cast<TextBox*>(&control)) box->Enter();
}

void HeadlessPlayer::PressKey(Form& form, int code, int shift) {
  if (shift != 0) return;
  CommandButton* button = nullptr;
  if (code == kReturnKey) button = form.DefaultButton();
  if (code == kEscapeKey) button = form.CancelButton();
  if (button != nullptr && button->Usable()) button->Press();
}

void HeadlessPlayer::Resize(ucTessel& control, Twips width, Twips height) {
  control.Resize(width, height);
}

}  // namespace tessel::drive
