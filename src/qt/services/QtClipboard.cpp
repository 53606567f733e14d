#include "qt/services/QtClipboard.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>

#include "base/RuntimeError.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

constexpr qint64 kNoAnswer = 1000;  // milliseconds

/// The toolkit waits some seconds for the program that has the clipboard, gives up, and waits anew
/// at the next question: this is the only one before an answer has come.
bool HoldsNothing(const QMimeData& data) {
  QElapsedTimer asked;
  asked.start();
  if (!data.formats().isEmpty()) return false;
  if (asked.elapsed() < kNoAnswer) return true;
  throw RuntimeError("The program that has the clipboard does not answer. Nothing was pasted.");
}

}  // namespace

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setMimeData(MimeOfBytes(text).release());
}

std::string QtClipboard::GetText() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr || HoldsNothing(*data)) return {};
  if (!HoldsText(*data)) throw RuntimeError("The clipboard holds no text. Nothing was pasted.");
  return BytesOfMime(*data);
}

}  // namespace tessel
