#include "host/changes/ChangeReports.h"

#include <algorithm>
#include <utility>

#include "host/changes/Background.h"
#include "host/changes/ChangeCount.h"
#include "host/changes/DifferenceWindow.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "services/Paths.h"

namespace tessel {
namespace {

QString NameOfDocument(const Document& document) {
  const std::string path = document.Path();
  return ShownName(path.empty() ? document.Name() : NameOfPath(path, '/'));
}

bool Has(const std::vector<Slot>& documents, Slot slot) {
  return std::ranges::find(documents, slot) != documents.end();
}

}  // namespace

/// What a document was and is. The text before is made of the text and its last step where nobody
/// has kept it: that may take a moment, on another thread.
struct ChangeReports::Texts {
  std::string after;
  std::optional<std::string> kept = {};
  EditHistory::Step step = {};

  std::string Before() const { return kept ? *kept : EditHistory::Before(after, step); }
};

ChangeReports::ChangeReports(QStatusBar& bar, TesselWidget& control, Histories& histories)
    : QObject(&bar),
      bar_(bar),
      control_(control),
      histories_(histories),
      line_(new ChangeLine(&bar)) {
  bar_.addWidget(line_, 1);
  line_->hide();
  connect(line_, &ChangeLine::showWanted, this, &ChangeReports::ShowChanges);
  connect(line_, &ChangeLine::undoWanted, this, &ChangeReports::UndoChanges);
  ucTessel& tessel = control_.Tessel();
  DocumentList& documents = tessel.OpenDocuments();
  subscriptions_ = {
      tessel.Converting.Connect([this](const Document&) { converting_ = true; }),
      tessel.CommandEnded.Connect([this] { OnCommandEnded(); }),
      documents.Saved.Connect([this](const Document& document) { saved_ = document.Place(); }),
      documents.Changed.Connect([this](const Document& document) { OnChanged(document); }),
      documents.AboutToDrop.Connect([this](const Document& document) { OnGone(document); }),
      documents.Moved.Connect([this](Slot, Slot) { Drop(); }),
      documents.Shown.Connect([this](const Document& document) {
        if (document.Place() != front_) Drop();
      }),
  };
}

// --- What has happened

void ChangeReports::OnCommandEnded() {
  const bool randomized = std::exchange(randomized_, false);
  const bool converted = std::exchange(converting_, false);
  const std::optional<Slot> saved = std::exchange(saved_, std::nullopt);
  const DocumentList& documents = control_.Tessel().OpenDocuments();
  const std::vector<Slot> edited = histories_.EditedByLastCommand();
  if (saved) {
    const Document document = documents.At(*saved);
    Drop();
    Say(SavedSentence(NameOfDocument(document), document.Editor().Bytes().size()));
  }
  if (edited.empty()) return;
  if (randomized) Report(ChangeKind::kRandomized, edited);
  if (converted) Report(ChangeKind::kConverted, edited);
}

void ChangeReports::LinesChanged() {
  Report(ChangeKind::kLines, {control_.Tessel().OpenDocuments().Current().Place()});
}

void ChangeReports::Replaced(std::size_t count, const std::vector<Slot>& documents) {
  Report(ChangeKind::kReplaced, documents);
  if (!report_) return;
  report_->replaced = count;
  Say(SentenceOf(*report_, {}));
}

void ChangeReports::Reloaded(std::string before) {
  const Document document = control_.Tessel().OpenDocuments().Current();
  ChangeReport report{.kind = ChangeKind::kReloaded, .before = std::move(before)};
  report.documents = {
      {document.Place(), document.Editor().Store().Revision(), NameOfDocument(document)}};
  Post(std::move(report));
}

void ChangeReports::BackupShown() {
  const Slot front = control_.Tessel().OpenDocuments().Current().Place();
  const std::vector<Slot> edited = histories_.EditedByLastCommand();
  if (Has(edited, front)) return Report(ChangeKind::kBackupPutBack, {front});
  Drop();
  const bool own = control_.Tessel().OpenDocuments().Current().IsUntitled();
  Say(own ? tr("The backup is a new document.") : tr("The backup is the text that is there."));
}

void ChangeReports::Report(ChangeKind kind, const std::vector<Slot>& documents) {
  ChangeReport report{.kind = kind};
  for (const Slot slot : documents) {
    const Document document = control_.Tessel().OpenDocuments().At(slot);
    if (!histories_.CanUndo(slot)) return Drop();
    report.documents.push_back(
        {slot, document.Editor().Store().Revision(), NameOfDocument(document)});
  }
  Post(std::move(report));
}

void ChangeReports::Post(ChangeReport report) {
  Drop();
  front_ = control_.Tessel().OpenDocuments().Current().Place();
  report_ = std::move(report);
  emit offered(true);
  if (report_->kind != ChangeKind::kReplaced) Count();
}

void ChangeReports::Count() {
  InBackground(
      *this,
      [texts = TextsOf(report_->documents.front()),
       values = report_->kind == ChangeKind::kRandomized] {
        const std::string before = texts.Before();
        ChangeCounts counts{ChangedLines(before, texts.after)};
        if (values) counts.values = ChangedValues(before, texts.after);
        return counts;
      },
      [this, number = posted_](const ChangeCounts& counts) {
        if (number != posted_ || !report_) return;
        // One line is in sight anyway.
        if (report_->kind == ChangeKind::kLines && counts.lines < 2) return Drop();
        Say(SentenceOf(*report_, counts));
      });
}

// --- The line

void ChangeReports::Say(const QString& sentence) {
  front_ = control_.Tessel().OpenDocuments().Current().Place();
  line_->Say(sentence, report_.has_value(), CanUndo());
  bar_.clearMessage();
}

void ChangeReports::Drop() {
  ++posted_;
  line_->Clear();
  if (std::exchange(report_, std::nullopt)) emit offered(false);
}

void ChangeReports::OnChanged(const Document& document) {
  if (!report_) {
    // Said of a text that was saved.
    if (!line_->Sentence().isEmpty() && document.Modified()) Drop();
    return;
  }
  for (const ChangedDocument& changed : report_->documents) {
    if (changed.slot == document.Place() &&
        changed.revision != document.Editor().Store().Revision()) {
      return Drop();
    }
  }
}

void ChangeReports::OnGone(const Document& document) {
  if (saved_ == document.Place()) saved_.reset();
  if (!report_) return Drop();
  for (const ChangedDocument& changed : report_->documents) {
    if (changed.slot == document.Place()) return Drop();
  }
}

// --- What it offers

Document ChangeReports::At(const ChangedDocument& changed) const {
  return control_.Tessel().OpenDocuments().At(changed.slot);
}

bool ChangeReports::CanUndo() const {
  return report_ && !report_->before &&
         std::ranges::all_of(report_->documents, [this](const ChangedDocument& changed) {
           return histories_.CanUndo(changed.slot);
         });
}

ChangeReports::Texts ChangeReports::TextsOf(const ChangedDocument& changed) const {
  Texts texts{.after = At(changed).Editor().Text(), .kept = report_->before};
  if (!texts.kept) texts.step = histories_.NewestStep(changed.slot);
  return texts;
}

void ChangeReports::ShowChanges() {
  if (!report_) return;
  std::vector<Comparison> comparisons;
  for (const ChangedDocument& changed : report_->documents) {
    Texts texts = TextsOf(changed);
    Comparison& next = comparisons.emplace_back();
    next.document = changed.name;
    next.nameBefore = tr("%1 before").arg(changed.name);
    next.nameAfter = tr("%1 now").arg(changed.name);
    next.before = texts.Before();
    next.after = std::move(texts.after);
  }
  ShowDifferences(*control_.window(), control_.CurrentEditorView(), std::move(comparisons));
}

void ChangeReports::UndoChanges() {
  if (!CanUndo() || control_.Tessel().Running()) return;
  const ChangeReport report = *report_;
  Drop();
  const DocumentList& documents = control_.Tessel().OpenDocuments();
  const Slot front = documents.Current().Place();
  for (const ChangedDocument& changed : report.documents) {
    if (documents.Current().Place() != changed.slot) documents.Select(changed.slot);
    histories_.Undo();
  }
  if (documents.Current().Place() != front) documents.Select(front);
  if (auto* view = control_.CurrentEditorView()) view->setFocus();
}

}  // namespace tessel
