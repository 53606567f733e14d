#include "host/RecoveryOffer.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <span>
#include <utility>

#include "base/RuntimeError.h"
#include "host/RestoredText.h"
#include "host/changes/DifferenceWindow.h"
#include "posix/PosixFiles.h"
#include "qt/base/QtText.h"
#include "safekeeping/DiskState.h"
#include "safekeeping/Hash.h"
#include "services/Paths.h"

namespace tessel {
namespace {

constexpr std::size_t kMostNamed = 4;

QString TimeOf(long long seconds) {
  return QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::ShortFormat);
}

QString Named(const KeptText& text, char separator) {
  const QString name =
      text.path.empty() ? QString(kUntitled) : ShownName(NameOfPath(text.path, separator));
  const QString time = TimeOf(text.seconds);
  const QString form =
      text.damaged ? QObject::tr("what is left of %1 (%2)") : QObject::tr("%1 (%2)");
  return form.arg(name.simplified(), time);
}

/// Beside its file as that is now, or beside nothing where there is no such file.
Comparison ComparedWithItsFile(const KeptBytes& text, char separator) {
  const bool hasFile = !text.path.empty() && DiskStateOf(text.path).exists;
  const QString name =
      text.path.empty() ? QString(kUntitled) : ShownName(NameOfPath(text.path, separator));
  return {.document = Named(text, separator),
          .nameBefore = hasFile ? QObject::tr("%1 on the disk").arg(name)
                                : QObject::tr("No file of %1").arg(name),
          .nameAfter = QObject::tr("The unsaved text of %1").arg(TimeOf(text.seconds)),
          // Not through the guarded files: this is no look that the user has taken.
          .before = hasFile ? PosixFiles().Read(text.path) : std::string(),
          .after = text.bytes};
}

/// What is left of a text must not take a whole one's place, nor an older text a newer one's.
bool TakesItsDocument(const KeptBytes& text, std::span<const KeptBytes> newerTexts) {
  return !text.damaged && std::ranges::none_of(newerTexts, [&](const KeptBytes& newer) {
    return !newer.damaged && newer.path == text.path;
  });
}

/// Whether the file holds other bytes than the text began from. The times alone do not tell: a copy
/// may keep an old one, and clocks are put back. A text that does not say what it began from is
/// compared by them.
bool HasOtherWork(const DiskState& file, const KeptText& text) try {
  if (!text.base) return file.written.seconds > text.seconds;
  // Not through the guarded files: this is no look that the user has taken.
  return ContentHash(PosixFiles().Read(text.path)) != *text.base;
} catch (const RuntimeError&) {  // opening it will say why
  return false;
}

}  // namespace

RecoveryOffer::RecoveryOffer(ucTessel& tessel, Files& files, MessageBox& messages,
                             std::unique_ptr<AbandonedTexts> texts, std::function<bool()> keepNow,
                             QWidget* parent)
    : NoticeBar(tr("Unsaved text found"), parent),
      tessel_(tessel),
      files_(files),
      messages_(messages),
      texts_(std::move(texts)),
      keepNow_(std::move(keepNow)) {
  SetText(Sentence());
  AddButton(tr("&Recover"), &RecoveryOffer::Recover);
  AddButton(tr("&Discard"), &RecoveryOffer::Discard);
  AddButton(tr("&Later"), &RecoveryOffer::Later);
  AddButton(tr("Show Differen&ces"), &RecoveryOffer::Compare);
  setVisible(!texts_->Texts().empty());
}

QString RecoveryOffer::Sentence() const {
  const auto& texts = texts_->Texts();
  QStringList names;
  for (std::size_t i = 0; i < texts.size() && i < kMostNamed; ++i) {
    names += Named(texts[i], files_.Separator());
  }
  if (texts.size() > kMostNamed) names += tr("%1 more").arg(texts.size() - kMostNamed);
  return tr("Text that was not saved when the program ended: %1.").arg(names.join(", "));
}

bool RecoveryOffer::MayGoOverItsFile(const KeptText& text) {
  const DiskState file = DiskStateOf(text.path);
  if (text.path.empty() || !file.exists || !HasOtherWork(file, text)) return true;
  const QString question =
      tr("%1 was changed at %2; the unsaved text, kept at %3, is without that change.\n"
         "Show the text as a change of the file all the same? "
         "\"No\" shows it as a document of its own.")
          .arg(ShownName(NameOfPath(text.path, files_.Separator())), TimeOf(file.written.seconds),
               TimeOf(text.seconds));
  return messages_.Show(question.toStdString(), MessageIcon::kQuestion, kProgramTitle,
                        MessageButtons::kNoYes) == MessageAnswer::kYes;
}

void RecoveryOffer::Recover() {
  if (tessel_.Running()) return;
  hide();
  bool allShown = true;
  const auto& texts = texts_->Texts();
  for (auto text = texts.begin(); text != texts.end(); ++text) {
    const bool takes = TakesItsDocument(*text, {text + 1, texts.end()}) && MayGoOverItsFile(*text);
    const std::string path = takes ? text->path : "";
    allShown = ShowRestoredText(tessel_, files_, path, text->bytes) && allShown;
  }
  if (keepNow_() && allShown) texts_->Discard();
}

void RecoveryOffer::Discard() {
  const MessageAnswer answer =
      messages_.Show(tr("Discard the text for good? It cannot be brought back.").toStdString(),
                     MessageIcon::kQuestion, kProgramTitle, MessageButtons::kNoYes);
  if (answer != MessageAnswer::kYes) return;
  texts_->Discard();
  hide();
}

void RecoveryOffer::Later() { hide(); }

void RecoveryOffer::Compare() try {
  std::vector<Comparison> comparisons;
  comparisons.reserve(texts_->Texts().size());
  for (const KeptBytes& text : texts_->Texts()) {
    comparisons.push_back(ComparedWithItsFile(text, files_.Separator()));
  }
  ShowDifferences(*window(), nullptr, std::move(comparisons));
} catch (const RuntimeError& error) {
  messages_.Show(error.what(), MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
}

}  // namespace tessel
