#include "host/status/DocumentStatus.h"

#include <utility>

#include "language/Definitions.h"
#include "language/Levels.h"
#include "qt/editor/ScintillaView.h"
#include "text/LineEnds.h"
#include "text/TextSearch.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr int kPauseMilliseconds = 400;
constexpr const char* kEncoding = "Windows-1252";

/// A look at the bytes spares the search for statements where the word stands nowhere.
bool Holds(std::string_view text, std::string_view word) {
  return FindText(text, word, 0, std::ssize(text), kFindWholeWord) != kNotFound;
}

/// A lone CR, a lone LF and CR LF each end a line; both count from 1.
struct CaretPlace {
  long line = 1;
  long column = 1;
};

CaretPlace PlaceOfCaret(const ScintillaView& view) {
  const long at = view.SendScintilla(Sci::SCI_GETCURRENTPOS);
  const long line = view.SendScintilla(Sci::SCI_LINEFROMPOSITION, at);
  const long start = view.SendScintilla(Sci::SCI_POSITIONFROMLINE, line);
  return {line + 1, view.SendScintilla(Sci::SCI_COUNTCHARACTERS, start, at) + 1};
}

// What says nothing leaves its room to the message.
void ShowIfAny(QLabel& label, const QString& text) {
  label.setText(text);
  label.setVisible(!text.isEmpty());
}

}  // namespace

QString DialectOf(const language::Script& script) {
  const std::string_view text = script.Text();
  const bool newer = Holds(text, "QSIZE");
  const bool older = Holds(text, "definelevelname");
  if (newer && !DefinitionsOf(script, "QSIZE").empty()) return QStringLiteral("1.4/1.5");
  return older && !language::Levels(script).empty() ? QStringLiteral("1.3D") : QString();
}

QString LineEndsShown(std::string_view text) {
  const LineEnds ends = LineEndsOf(text);
  if (ends.Mixed()) return DocumentStatus::tr("Mixed");
  return ends.Only() ? QString::fromLatin1(NameOf(*ends.Only())) : QString();
}

DocumentStatus::DocumentStatus(QStatusBar& bar, TesselWidget& control, ScriptOf scriptOf)
    : QObject(&bar),
      control_(control),
      scriptOf_(std::move(scriptOf)),
      pause_(std::chrono::milliseconds(kPauseMilliseconds), this),
      selection_(AddLabel(bar, tr("%1 selected").arg(1000), tr("Characters that are selected"))),
      modified_(AddLabel(bar, tr("Modified"), {})),
      caret_(AddLabel(bar, tr("Ln %1, Col %2").arg("000000", "0000"),
                      tr("Line and column of the caret"))),
      encoding_(AddLabel(bar, kEncoding, tr("How the bytes of the file are shown"))),
      lineEnds_(AddLabel(bar, tr("Mixed"), tr("How the lines end"))),
      dialect_(AddLabel(bar, "1.4/1.5", tr("The version of the game that the text is for"))) {
  encoding_->setText(kEncoding);
  connect(&pause_, &Pause::over, this, &DocumentStatus::ReadText);
  connect(&control_, &TesselWidget::documentChanged, this, &DocumentStatus::ShowDocument);
  connect(&control_, &TesselWidget::caretMoved, this, &DocumentStatus::ShowCaret);
  subscriptions_ = {control_.Tessel().OpenDocuments().Changed.Connect(
      [this](const Document&) { pause_.Begin(); })};
  ShowDocument();
}

QLabel* DocumentStatus::AddLabel(QStatusBar& bar, const QString& widest, const QString& tip) {
  auto* label = new QLabel(&bar);
  label->setTextFormat(Qt::PlainText);
  label->setMinimumWidth(label->fontMetrics().horizontalAdvance(widest) + 12);
  label->setToolTip(tip);
  label->setAccessibleDescription(tip);
  bar.addPermanentWidget(label);
  return label;
}

void DocumentStatus::ShowDocument() {
  const bool modified = control_.Tessel().OpenDocuments().Current().Modified();
  ShowIfAny(*modified_, modified ? tr("Modified") : QString());
  ShowCaret();
  pause_.Begin();
}

void DocumentStatus::ShowCaret() {
  const ScintillaView* view = control_.CurrentEditorView();
  if (view == nullptr) return;
  const CaretPlace place = PlaceOfCaret(*view);
  caret_->setText(tr("Ln %1, Col %2").arg(place.line).arg(place.column));
  const Position selected = control_.Tessel().OpenDocuments().CurrentEditor().SelLength();
  ShowIfAny(*selection_, selected > 0 ? tr("%1 selected").arg(selected) : QString());
}

void DocumentStatus::ReadText() {
  if (control_.CurrentEditorView() == nullptr) return;
  const Document document = control_.Tessel().OpenDocuments().Current();
  lineEnds_->setText(LineEndsShown(document.Editor().Bytes()));
  dialect_->setText(DialectOf(scriptOf_(document.Place())));
}

}  // namespace tessel
