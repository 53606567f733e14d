#include "host/ReadingNotice.h"

#include <QLocale>
#include <optional>

#include "qt/base/QtText.h"
#include "qt/editor/LongLines.h"

namespace tessel {

ReadingNotice::ReadingNotice(TesselWidget& control, QWidget* parent)
    : NoticeBar(tr("For reading only"), parent), control_(control) {
  DocumentList& documents = control.Tessel().OpenDocuments();
  const auto look = [this](const Document& document) { Look(document); };
  const auto end = [this](const Document& document) { Set(document, std::nullopt); };
  const auto follow = [this, &documents](Slot, Slot to) { Look(documents.At(to)); };
  const auto show = [this](const Document& document) { Show(document); };
  subscriptions_ = {documents.Loaded.Connect(look), documents.AboutToDrop.Connect(end),
                    documents.Moved.Connect(follow), documents.Shown.Connect(show)};
}

ScintillaView& ReadingNotice::ViewOf(const Document& document) const {
  return *qobject_cast<ScintillaView*>(control_.WidgetFor(document.Editor()));
}

void ReadingNotice::Look(const Document& document) {
  const std::string_view text = document.Editor().Bytes();
  std::optional<Reading> reading;
  if (HasLongLine(text, kLongestEdited + 1)) {
    const Position longest = LongestLine(text);
    const QString sentence = tr("%1 is open for reading: a line of %2 bytes is too long for keys.");
    reading = {sentence.arg(ShownName(document.Name()), QLocale().toString(longest)), kShown};
  }
  Set(document, reading);
}

void ReadingNotice::Set(const Document& document, const std::optional<Reading>& reading) {
  ViewOf(document).SetReading(reading);
  if (document == control_.Tessel().OpenDocuments().Current()) ShowFor(reading);
}

void ReadingNotice::Show(const Document& document) {
  // A command may have ended what was in the way.
  if (ViewOf(document).CurrentReading()) Look(document);
  ShowFor(ViewOf(document).CurrentReading());
}

void ReadingNotice::ShowFor(const std::optional<Reading>& reading) {
  if (reading) {
    SetText(reading->why + tr(" Of such lines the first %1 bytes are drawn. The panel, the tools "
                              "and the command line change the text as ever.")
                               .arg(QLocale().toString(qlonglong{kShown})));
  }
  setVisible(reading.has_value());
}

}  // namespace tessel
