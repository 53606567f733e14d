#include "settings/Defines.h"

#include "base/ScopeGuard.h"

namespace tessel {
namespace {

constexpr std::string_view kBlank = " ";
constexpr std::string_view kCommentOrLineEnd = "/\n";

void SelectTokenBeforeCaret(RichTextBox& editor) { editor.Span(kBlank, false, true); }

void SelectValue(RichTextBox& editor) {
  editor.Span(kCommentOrLineEnd, true, true);
  const bool blankBeforeEnd = editor.SelBytes().ends_with(kBlank);
  editor.SetSelStart(editor.SelEnd());
  if (blankBeforeEnd) {
    editor.Span(kBlank, false, false);
    editor.SetSelLength(0);
  }
  SelectTokenBeforeCaret(editor);
}

}  // namespace

Position FindDefine(RichTextBox& editor, std::string_view name, bool wholeWord) {
  return editor.Find(name, 0, std::nullopt, wholeWord ? kFindWholeWord : kFindDefault);
}

void ReplaceValue(RichTextBox& editor, std::string_view newText) {
  editor.SetSelText(newText);
  SelectTokenBeforeCaret(editor);
}

void SelectDefineValue(RichTextBox& editor, YesNoWrite mode, const MayReplace& mayReplace) {
  SelectValue(editor);
  editor.SetHideSelection(false);
  if (mode == YesNoWrite::kSelectOnly) return;
  if (mode == YesNoWrite::kYes || mode == YesNoWrite::kNo) {
    const std::string_view value = mode == YesNoWrite::kYes ? "YES" : "NO";
    if (!mayReplace || mayReplace(value)) editor.SetSelText(value);
  }
  SelectTokenBeforeCaret(editor);
  editor.SetHideSelection(false);
}

bool ReadYesNo(RichTextBox& editor, std::string_view name) {
  editor.SetHideSelection(true);
  FindDefine(editor, name, true);
  SelectDefineValue(editor, YesNoWrite::kSelectOnly);
  return editor.SelBytes() == "YES";
}

void ShowDefineValue(RichTextBox& editor, Position position, ComboBox& valueBox,
                     bool& bSettingValueBox) {
  if (position == kNotFound) return;
  SelectValue(editor);
  {
    const BusyFlag setting(bSettingValueBox);
    valueBox.SetText(editor.SelText());
  }
  editor.SetHideSelection(false);
}

void WriteSelectedValue(RichTextBox& editor, std::string_view newText, bool bSettingValueBox,
                        const MayReplace& mayReplace) {
  if (bSettingValueBox || editor.SelLength() < 1) return;
  if (mayReplace && !mayReplace(newText)) return;
  ReplaceValue(editor, newText);
}

}  // namespace tessel
