#include "words/WordEditor.h"

#include <algorithm>

#include "base/ScopeGuard.h"
#include "text/Text.h"
#include "words/WordList.h"

namespace tessel {

void WordEditor::Show(const std::string& word) {
  LoadList();
  ClearFields();
  services_.focus.MoveTo(form_.txtParams);
  form_.txtParams.SelectAll();
  form_.txtParam.SetText(word);
  services_.forms.ShowModal(form_);
}

void WordEditor::LoadList() {
  params_ = ShowScriptWords(form_.lstWords, ReadScriptWords(services_.settings));
}

void WordEditor::ClearFields() {
  form_.txtParam.SetText("");
  form_.txtParams.SetText("");
}

int WordEditor::FindWord(const std::string& word) const {
  const auto& list = form_.lstWords.List();
  const auto it = std::ranges::find_if(
      list, [&](const std::string& entry) { return EqualIgnoringAsciiCase(entry, word); });
  return it == list.end() ? kNoSelection : static_cast<int>(it - list.begin());
}

bool WordEditor::Ask(const std::string& question, MessageIcon icon) {
  return services_.messages.Show(question, icon, kProgramTitle, MessageButtons::kYesNo) ==
         MessageAnswer::kYes;
}

void WordEditor::lstWords_Click() {
  const int selected = form_.lstWords.ListIndex();
  if (selected == kNoSelection || selectingForSave_) return;
  form_.txtParam.SetText(form_.lstWords.List(selected));
  form_.txtParams.SetText(params_.at(static_cast<std::size_t>(selected)));
}

void WordEditor::cmdNew_Click() {
  ClearFields();
  form_.lstWords.SetListIndex(kNoSelection);
  services_.focus.MoveTo(form_.txtParam);
}

void WordEditor::cmdSave_Click() {
  const ScriptWord word{form_.txtParam.Text(), form_.txtParams.Text()};
  if (word.word.empty()) return;
  if (const int listed = FindWord(word.word); listed != kNoSelection) {
    {
      const BusyFlag selecting(selectingForSave_);  // the fields keep what was typed
      form_.lstWords.SetListIndex(listed);
    }
    if (!Ask(word.word + " already exists in the list. Overwrite?", MessageIcon::kExclamation))
      return;
  }
  WriteScriptWord(services_.settings, word);
  LoadList();
  ClearFields();
}

void WordEditor::cmdDelete_Click() {
  const int selected = form_.lstWords.ListIndex();
  if (selected == kNoSelection) {
    services_.messages.Show("Please select a function from the list.", MessageIcon::kExclamation,
                            kProgramTitle, MessageButtons::kOk);
    return;
  }
  const std::string word = form_.lstWords.List(selected);
  if (!Ask("Delete " + word + " from the list?", MessageIcon::kQuestion)) return;
  DeleteScriptWord(services_.settings, word);
  form_.lstWords.RemoveItem(selected);
  params_.erase(params_.begin() + selected);
  cmdNew_Click();
}

}  // namespace tessel
