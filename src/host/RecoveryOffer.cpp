#include "host/RecoveryOffer.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <span>
#include <utility>

#include "host/RestoredText.h"
#include "qt/base/QtText.h"
#include "safekeeping/DiskState.h"
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

/// What is left of a text must not take a whole one's place, nor an older text a newer one's.
bool TakesItsDocument(const KeptBytes& text, std::span<const KeptBytes> newerTexts) {
  return !text.damaged && std::ranges::none_of(newerTexts, [&](const KeptBytes& newer) {
    return !newer.damaged && newer.path == text.path;
  });
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

/// The text may be older than what is in the file now.
bool RecoveryOffer::MayGoOverItsFile(const KeptText& text) {
  const DiskState file = DiskStateOf(text.path);
  if (text.path.empty() || !file.exists || file.written.seconds <= text.seconds) return true;
  const QString question =
      tr("%1 was changed at %2, after the unsaved text was kept at %3.\n"
         "Show the older text as a change of the file? \"No\" shows it as a document of its own.")
          .arg(ShownName(NameOfPath(text.path, files_.Separator())), TimeOf(file.written.seconds),
               TimeOf(text.seconds));
  return messages_.Show(question.toStdString(), MessageIcon::kQuestion, kProgramTitle,
                        MessageButtons::kYesNo) == MessageAnswer::kYes;
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
      messages_.Show("Discard the text for good? It cannot be brought back.",
                     MessageIcon::kQuestion, kProgramTitle, MessageButtons::kYesNo);
  if (answer != MessageAnswer::kYes) return;
  texts_->Discard();
  hide();
}

void RecoveryOffer::Later() { hide(); }

}  // namespace tessel
