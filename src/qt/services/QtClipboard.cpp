#include "qt/services/QtClipboard.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>

#include "base/RuntimeError.h"
#include "qt/base/SelectionOwner.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

constexpr qint64 kNoAnswer = 1000;  // milliseconds

[[noreturn]] void RefuseWithoutAnswer() {
  throw RuntimeError("The program that has the clipboard does not answer. Nothing was pasted.");
}

/// Where nobody could tell before, or the program stopped in between, the toolkit waits some
/// seconds for it, gives up, and waits anew at the next question: this is the only one before an
/// answer has come.
bool HoldsNothing(const QMimeData& data) {
  QElapsedTimer asked;
  asked.start();
  if (!data.formats().isEmpty()) return false;
  if (asked.elapsed() < kNoAnswer) return true;
  RefuseWithoutAnswer();
}

}  // namespace

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setMimeData(MimeOfBytes(text).release());
}

std::string QtClipboard::GetText() {
  if (!SelectionOwnerAnswers(QClipboard::Clipboard)) RefuseWithoutAnswer();
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr || HoldsNothing(*data)) return {};
  if (!HoldsText(*data)) throw RuntimeError("The clipboard holds no text. Nothing was pasted.");
  return BytesOfMime(*data);
}

}  // namespace tessel
