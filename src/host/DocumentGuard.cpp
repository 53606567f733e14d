#include "host/DocumentGuard.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <limits>
#include <utility>

#include "base/RuntimeError.h"
#include "posix/Posix.h"
#include "qt/base/QtText.h"
#include "services/Paths.h"

namespace tessel {
namespace {

bool SameFile(const DiskState& a, const DiskState& b) {
  return a.exists && b.exists && a.device == b.device && a.number == b.number;
}

class GuardTexts {
  Q_DECLARE_TR_FUNCTIONS(DocumentGuard)
};

QString Size(long long bytes) {
  constexpr long long kMost = std::numeric_limits<int>::max();
  return GuardTexts::tr("%1 byte(s)", nullptr, static_cast<int>(std::min(bytes, kMost)))
      .arg(QLocale().toString(bytes));
}

QString Time(const DiskState& state) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(state.written.seconds),
                            QLocale::ShortFormat);
}

QString OneOfSeveral(const std::string& candidate) {
  return GuardTexts::tr("Names that differ only in the case of letters are several files. Open %1?")
      .arg(ShownName(candidate));
}

QString InsteadOf(const std::string& path, const std::string& candidate) {
  return GuardTexts::tr("%1 is not there. Open %2?").arg(ShownName(path), ShownName(candidate));
}

bool IsReadOnly(const std::string& path) {
  const auto status = posix::StatusOf(path);
  return status && (status->st_mode & S_IWUSR) == 0;
}

}  // namespace

void DocumentGuard::Watch(DocumentList& documents) {
  documents_ = &documents;
  realPaths_.Watch(documents);
  const auto renew = [this](const Document& document) { Renew(document); };
  subscriptions_ = {
      documents.Loaded.Connect(renew),
      documents.Saved.Connect(renew),
      documents.AboutToDrop.Connect(
          [this](const Document& document) { At(document.Place()).reset(); }),
      documents.Moved.Connect(
          [this](Slot from, Slot to) { At(to) = std::exchange(At(from), std::nullopt); }),
  };
}

DocumentGuard::Record& DocumentGuard::At(Slot slot) {
  const auto index = static_cast<std::size_t>(Index(slot));
  if (index >= records_.size()) records_.resize(index + 1);
  return records_[index];
}

/// What the file looked like just before it was read, or just after it was written.
void DocumentGuard::Renew(const Document& document) {
  const std::string path = document.Path();
  At(document.Place()) = path.empty() ? std::nullopt : files_.Known(path);
}

std::optional<Document> DocumentGuard::OtherWith(const DiskState& file,
                                                 const Document* besides) const {
  for (const Document& document : documents_->All()) {
    const std::string path = document.Path();
    const bool other = besides == nullptr || document != *besides;
    if (other && !path.empty() && SameFile(DiskStateOf(path), file)) return document;
  }
  return std::nullopt;
}

std::optional<std::string> DocumentGuard::BeforeOpening(const std::string& path) {
  const auto meant = SpellingMeantBy(path);
  if (!meant) return std::nullopt;
  const auto open = OtherWith(DiskStateOf(*meant), nullptr);
  if (!open) return meant;
  documents_->Select(open->Place());
  return std::nullopt;
}

std::optional<std::string> DocumentGuard::SpellingMeantBy(const std::string& path) {
  const std::vector<std::string> candidates = realPaths_.Candidates(path);
  if (candidates.empty()) return path;  // the control says that it is not there
  if (candidates.size() == 1) return candidates.front();
  const bool isThere = posix::StatusOfLink(path).has_value();
  for (const std::string& candidate : candidates) {
    if (Agrees(isThere ? OneOfSeveral(candidate) : InsteadOf(path, candidate))) return candidate;
  }
  return std::nullopt;
}

bool DocumentGuard::Agrees(const QString& question) {
  return messages_.Show(question.toStdString(), MessageIcon::kExclamation, kProgramTitle,
                        MessageButtons::kNoYes) == MessageAnswer::kYes;
}

/// What was said in the question has to hold when it is answered.
bool DocumentGuard::MayReplace(const std::string& path, const DiskState& file,
                               const QString& question) {
  if (!Agrees(question)) return false;
  if (DiskStateOf(path) == file) return true;
  throw RuntimeError(NameOfPath(path, files_.Separator()) +
                     " has not been saved: another program has changed it meanwhile.");
}

bool DocumentGuard::BeforeSaving(const Document& document, const std::string& path) {
  const DiskState now = DiskStateOf(path);
  if (!now.exists) return true;
  const QString name = ShownName(NameOfPath(path, files_.Separator()));
  Record& own = At(document.Place());
  const bool itsOwn = document.HasPath(path) && own.has_value();
  if (itsOwn) files_.RefuseIfChanged(*own, document.Editor().Bytes());
  if (const auto other = OtherWith(now, &document)) {
    return MayReplace(
        path, now,
        GuardTexts::tr("%1 is open in another tab. Write this document over its file?").arg(name));
  }
  if (!itsOwn && !(own && SameFile(own->state, now))) {
    const bool may =
        MayReplace(path, now,
                   GuardTexts::tr("%1 already exists (%2, changed %3).\n"
                                  "Replace it with this document (%4)?")
                       .arg(name, Size(now.size), Time(now), Size(document.Editor().Length())));
    if (may) files_.Forget(path);  // what a document read from it that is closed now
    return may;
  }
  return !IsReadOnly(path) ||
         MayReplace(
             path, now,
             GuardTexts::tr("%1 is read-only. Save over it and make it writable?").arg(name));
}

bool DocumentGuard::ChangedByOthers(const Document& document) {
  Record& own = At(document.Place());
  return own && files_.Changed(*own);
}

std::optional<std::uint64_t> DocumentGuard::BaseOf(const Document& document) {
  const Record& own = At(document.Place());
  return own ? own->hash : std::nullopt;
}

void DocumentGuard::Accept(const Document& document) {
  files_.Accept(document.Path());
  Renew(document);
}

}  // namespace tessel
