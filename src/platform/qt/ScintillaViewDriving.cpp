// What a driver needs to play a person at a ScintillaView and to look at the screen.
#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "platform/qt/ControlView.h"
#include "platform/qt/ScintillaView.h"

namespace tessel {
namespace {

struct Press {
  int key = 0;
  QString text;
};

std::optional<Press> PressFor(QChar c) {
  if (c == '\r' || c == '\n') return Press{Qt::Key_Return, QStringLiteral("\r")};
  if (c == '\t') return Press{Qt::Key_Tab, QString(c)};
  if (!c.isPrint()) return std::nullopt;
  return Press{c.toUpper().unicode(), QString(c)};
}

}  // namespace

void ScintillaView::typeText(const QString& text) {
  ByHand([&] {
    for (qsizetype i = 0; i < text.size(); ++i) {
      if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') continue;
      if (const auto press = PressFor(text[i])) {
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
          QKeyEvent event(type, press->key, Qt::NoModifier, press->text);
          QCoreApplication::sendEvent(this, &event);
        }
        continue;
      }
      QInputMethodEvent event;
      event.setCommitString(text.mid(i, 1));
      QCoreApplication::sendEvent(this, &event);
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
  return document_.Runs();
}

}  // namespace tessel
