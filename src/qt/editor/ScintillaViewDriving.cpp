// What a driver needs to play a person at a ScintillaView and to look at the screen.
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "qt/base/ControlView.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

void Press(QWidget& widget, int key, const QString& text) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

void Commit(QWidget& widget, const QString& text) {
  QInputMethodEvent event;
  event.setCommitString(text);
  QCoreApplication::sendEvent(&widget, &event);
}

}  // namespace

void ScintillaView::typeText(const QString& text) {
  ByHand([&] {
    for (qsizetype i = 0; i < text.size(); ++i) {
      const QChar c = text[i];
      const bool pair = QStringView(text).mid(i, 2) == QLatin1String("\r\n");
      const QString lineEnd = pair ? text.mid(i, 2) : QString(c);
      if ((c == '\r' || c == '\n') && lineEnd.toStdString() == LineEndOfText()) {
        Press(*this, Qt::Key_Return, QStringLiteral("\r"));
        i += pair ? 1 : 0;
      } else if (c == '\t' && (i > 0 || text.size() == 1)) {  // over lines the key alone indents
        Press(*this, Qt::Key_Tab, lineEnd);
      } else if (c.isPrint()) {
        Press(*this, c.toUpper().unicode(), lineEnd);
      } else {
        Commit(*this, lineEnd);
        i += pair ? 1 : 0;
      }
    }
  });
}

QByteArray ScintillaView::displayedBytes() {
  TakeOver();
  if (!InStep() || !InSight(model_)) BringUpToDate();
  return QByteArray::fromStdString(document_.Bytes());
}

std::pair<Position, Position> ScintillaView::displayedSelection() {
  TakeOver();
  if (!InStep() || !InSight(model_)) BringUpToDate();
  const Position start = document_.OffsetOf(SendScintilla(SCI_GETSELECTIONSTART));
  return {start, document_.OffsetOf(SendScintilla(SCI_GETSELECTIONEND)) - start};
}

std::vector<ColourRun> ScintillaView::displayedColours() {
  TakeOver();
  if (!InStep() || !InSight(model_)) BringUpToDate();
  document_.AskForAllColours();
  return document_.Runs();
}

}  // namespace tessel
