#include "host/ConversionNotice.h"

#include <algorithm>
#include <utility>

#include "host/RestoredText.h"
#include "qt/base/QtText.h"
#include "surface/Parked.h"

namespace tessel {

ConversionNotice::ConversionNotice(ucTessel& tessel, QWidget* parent)
    : NoticeBar(tr("Document converted"), parent), tessel_(tessel) {
  AddButton(tr("&Undo Convert"), &ConversionNotice::UndoConversion);
  AddButton(tr("Keep Co&nverted"), &ConversionNotice::KeepConverted);
  DocumentList& documents = tessel_.OpenDocuments();
  subscriptions_ = {
      tessel_.Converting.Connect([this](const Document& document) { OnConverting(document); }),
      tessel_.CommandEnded.Connect([this] { OnCommandEnded(); }),
      documents.Changed.Connect([this](const Document& document) { OnChanged(document); }),
      documents.AboutToDrop.Connect(
          [this](const Document& document) { At(document.Place()).reset(); }),
      documents.Moved.Connect(
          [this](Slot from, Slot to) { At(to) = std::exchange(At(from), std::nullopt); }),
  };
}

std::optional<ConversionNotice::Before>& ConversionNotice::At(Slot slot) {
  const auto index = static_cast<std::size_t>(Index(slot));
  if (index >= before_.size()) before_.resize(index + 1);
  return before_[index];
}

void ConversionNotice::OnConverting(const Document& document) {
  const RichTextBox& editor = document.Editor();
  At(document.Place()) = {editor.Text(), editor.Store().Runs(0, editor.Length()),
                          editor.SelStart()};
}

// A conversion that was refused, or failed, has left the text as it was.
void ConversionNotice::OnCommandEnded() {
  const Document document = tessel_.OpenDocuments().Current();
  auto& before = At(document.Place());
  if (before && before->convertedRevision == 0) {
    before->convertedRevision = document.Editor().Store().Revision();
    if (document.Editor().Bytes() == before->text) before.reset();
  }
  Update();
}

// Raised for colours, too, and in the middle of the conversion itself.
void ConversionNotice::OnChanged(const Document& document) {
  auto& before = At(document.Place());
  if (!before || before->convertedRevision == 0) return;
  if (before->convertedRevision != document.Editor().Store().Revision()) before.reset();
}

void ConversionNotice::Update() {
  const Document document = tessel_.OpenDocuments().Current();
  const bool offered = At(document.Place()).has_value();
  if (offered) {
    SetText(tr("%1 has been converted. The text from before can be put back until you change it.")
                .arg(ShownName(document.Name())));
  }
  setVisible(offered);
}

void ConversionNotice::UndoConversion() {
  tessel_.Run([this] {
    const Document document = tessel_.OpenDocuments().Current();
    if (const auto before = std::exchange(At(document.Place()), std::nullopt)) {
      PutBack(document.Editor(), *before);
    }
  });
}

void ConversionNotice::PutBack(RichTextBox& editor, const Before& before) {
  ReplaceText(editor, before.text);
  {
    const Parked parked(editor, Parked::Left::kInFront);
    // From the back: a selection cannot start between CR and LF, and starts too early there.
    std::for_each(before.colours.rbegin(), before.colours.rend(), [&](const ColourRun& run) {
      editor.SetSelStart(run.start);
      editor.SetSelLength(run.start + run.length - editor.SelStart());
      editor.SetSelColor(run.colour);
    });
  }
  editor.SetSelStart(before.caret);
}

void ConversionNotice::KeepConverted() {
  At(tessel_.OpenDocuments().Current().Place()).reset();
  Update();
}

}  // namespace tessel
