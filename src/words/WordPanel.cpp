#include "words/WordPanel.h"

#include <utility>

#include "base/RuntimeError.h"
#include "base/ScopeGuard.h"
#include "words/WordList.h"

namespace tessel {
namespace {

constexpr std::string_view kWordDelimiters = "\t\r\n ";

}  // namespace

WordPanel::WordPanel(const DocumentList& documents, const Controls& controls,
                     const Services& services, SettingsPanel& settings, MayPanelWrite mayWrite)
    : documents_(documents),
      controls_(controls),
      services_(services),
      settings_(settings),
      mayWrite_(std::move(mayWrite)),
      editor_(services) {}

void WordPanel::LoadWordList() {
  controls_.lstWords.Clear();
  wordParams_.clear();
  try {
    if (!HasScriptWordEntries(services_.settings)) return;
    wordParams_ = ShowScriptWords(controls_.lstWords, ReadScriptWords(services_.settings));
  } catch (const RuntimeError&) {  // no words, then
  }
  const std::string searched = controls_.txtSearch.Text();
  controls_.txtSearch.SetText("");
  controls_.txtSearch.SetText(searched);
}

void WordPanel::txtSearch_Change() {
  if (wordListBusy_) return;
  const std::string text = controls_.txtSearch.Text();
  controls_.cmdAddword.SetEnabled(!text.empty());
  if (text.empty()) return search_.Reset();

  controls_.lblParams.SetCaption("");
  const int match = search_.Search(text, controls_.lstWords.List());
  {
    const BusyFlag busy(wordListBusy_);
    controls_.lstWords.SetListIndex(kNoSelection);
    controls_.lstWords.SetListIndex(match);
  }
  ShowParameters();
}

void WordPanel::ShowParameters() {
  const int selected = controls_.lstWords.ListIndex();
  if (selected == kNoSelection) return;
  controls_.lblParams.SetCaption(wordParams_.at(static_cast<std::size_t>(selected)));
}

void WordPanel::lstWords_Click() {
  if (wordListBusy_ || controls_.lstWords.ListIndex() == kNoSelection) return;
  const BusyFlag busy(wordListBusy_);
  controls_.txtSearch.SetText(controls_.lstWords.List(controls_.lstWords.ListIndex()));
  ShowParameters();
  controls_.cmdAddword.SetEnabled(true);
}

void WordPanel::InsertWord() {
  const int selected = controls_.lstWords.ListIndex();
  if (selected == kNoSelection) return;
  const std::string word = controls_.lstWords.List(selected);
  if (mayWrite_(PanelWrite::kWord, word)) documents_.CurrentEditor().SetSelText(word);
}

void WordPanel::cmdAddword_Click() {
  editor_.Show(controls_.txtSearch.Text());
  LoadWordList();
}

void WordPanel::ParameterInfo() {
  settings_.BringIntoSight();
  RichTextBox& editor = documents_.CurrentEditor();
  editor.Span(kWordDelimiters, true, true);
  editor.SetSelStart(editor.SelEnd());
  editor.Span(kWordDelimiters, false, true);
  if (editor.SelLength() == 0) {
    services_.messages.Show("No text selected. Please highlight a function or word.",
                            MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
    return;
  }
  controls_.txtSearch.SetText(editor.SelText());
  controls_.tbsCon.Select(kFunctionsPage + 1);
}

}  // namespace tessel
