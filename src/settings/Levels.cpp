#include "settings/Levels.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/ScopeGuard.h"
#include "services/Hourglass.h"
#include "surface/Parked.h"
#include "text/Text.h"

namespace tessel {
namespace {

constexpr std::string_view kLevelWord = "definelevelname";
constexpr std::string_view kLineEnds = "\r\n";

}  // namespace

std::optional<std::string> EpisodeAndLevel(std::string_view line) {
  const auto first = line.find(' ');
  const auto second = first == line.npos ? first : line.find(' ', first + 1);
  const auto third = second == line.npos ? second : line.find(' ', second + 1);
  if (third == line.npos) return std::nullopt;
  return std::string(line.substr(first + 1, third - first - 1));
}

std::string TitleOfLevel(std::string_view mapToLineEnd) {
  // Positions count from 1, and a colon that is not there stands at 0.
  const auto positionOf = [&](std::size_t from) {
    const auto found = mapToLineEnd.find(':', from);
    return found == mapToLineEnd.npos ? 0 : found + 1;
  };
  const std::size_t second = positionOf(positionOf(0));
  const std::size_t title = second + 4;
  return std::string(mapToLineEnd.substr(std::min(title - 1, mapToLineEnd.size())));
}

Levels::Levels(const DocumentList& documents, const Controls& controls, const Services& services,
               const std::string& conPath, MayPanelWrite mayWrite)
    : documents_(documents),
      controls_(controls),
      services_(services),
      conPath_(conPath),
      mayWrite_(std::move(mayWrite)) {}

void Levels::ClearBoxes() {
  controls_.txtMap.SetText("");
  controls_.txtTitle.SetText("");
  controls_.cmdInsert[0].SetEnabled(false);
  controls_.cmdInsert[1].SetEnabled(false);
}

void Levels::Restart() {
  controls_.cboEpisode.SetListIndex(kNoSelection);
  ClearBoxes();
  FillLevelList();
}

bool Levels::PageSelected() const {
  return EqualIgnoringAsciiCase(controls_.tbsCon.At(controls_.tbsCon.Selected()).key, "LEVEL");
}

void Levels::DocumentShown() {
  controls_.cboEpisode.Clear();
  if (!PageSelected()) return;
  ClearBoxes();
  FillLevelList();
}

// A new document's levels can wait for the page; those of an opened one have always come at once.
void Levels::DocumentLoaded(const Document& document) {
  if (!document.IsUntitled() || PageSelected()) Restart();
}

void Levels::FillLevelList() {
  const Hourglass hourglass(services_.pointer);
  RichTextBox& editor = documents_.CurrentEditor();
  controls_.cboEpisode.Clear();
  if (editor.Length() == 0) return;

  const Parked parked(editor, Parked::Left::kAsBefore);
  const ScopeGuard putBack([&editor, caret = editor.SelStart()] { editor.SetSelStart(caret); });
  editor.SetSelStart(0);
  editor.SetHideSelection(true);
  std::vector<std::string> entries;
  for (Position at = editor.Find(kLevelWord, 0); at != kNotFound;
       at = editor.Find(kLevelWord, at + 4)) {
    editor.Span(kLineEnds, true, true);
    if (auto entry = EpisodeAndLevel(editor.SelBytes())) entries.push_back(std::move(*entry));
  }
  controls_.cboEpisode.AddItems(entries);
}

void Levels::ShowLevel(const std::string& entry) {
  RichTextBox& editor = documents_.CurrentEditor();
  if (editor.Length() == 0) return;
  editor.SetSelStart(0);
  editor.SetSelLength(0);
  editor.SetHideSelection(false);
  if (editor.Find(std::string(kLevelWord) + " " + entry, 0) == kNotFound) return;

  editor.SetSelStart(editor.SelEnd() + 1);
  editor.Span(" ", true, true);
  controls_.txtMap.SetText(editor.SelText());
  editor.Span(kLineEnds, true, true);
  controls_.txtTitle.SetText(TitleOfLevel(editor.SelBytes()));
}

void Levels::cboEpisode_Click() {
  if (controls_.cboEpisode.ListIndex() != kNoSelection) ShowLevel(controls_.cboEpisode.Text());
}

void Levels::SelectInDocument(const TextBox& box) {
  RichTextBox& editor = documents_.CurrentEditor();
  editor.SetHideSelection(false);
  editor.Find(box.Text(), 0);
}

void Levels::OfferInsert(int index) {
  controls_.cmdInsert[index].SetEnabled(true);
  controls_.cmdInsert[1 - index].SetEnabled(false);
}

void Levels::txtMap_GotFocus() {
  controls_.txtMap.SelectAll();
  SelectInDocument(controls_.txtMap);
  OfferInsert(0);
}

void Levels::txtTitle_GotFocus() {
  controls_.txtTitle.SelectAll();
  SelectInDocument(controls_.txtTitle);
  OfferInsert(1);
}

void Levels::cmdMap_Click() {
  SelectInDocument(controls_.txtMap);
  OfferInsert(0);
  FileDialogRequest request;
  request.filter = "MAP Files (*.map)|*.map";
  request.flags = kHideReadOnly;
  request.initDir = conPath_;
  if (!controls_.dlgCommon.Show(services_.fileDialogs, services_.files, request)) return;
  controls_.txtMap.SetText(controls_.dlgCommon.Held().fileTitle);
  services_.focus.MoveTo(controls_.cmdInsert[0]);
}

void Levels::cmdInsert_Click(int index) {
  RichTextBox& editor = documents_.CurrentEditor();
  if (editor.SelLength() == 0) return;
  const std::string text = index == 0 ? controls_.txtMap.Text() : controls_.txtTitle.Text();
  if (mayWrite_(PanelWrite::kLevel, text)) editor.SetSelText(text);
}

}  // namespace tessel
