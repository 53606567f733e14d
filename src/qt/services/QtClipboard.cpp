#include "qt/services/QtClipboard.h"

#include <QClipboard>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QMimeData>

#include "base/RuntimeError.h"
#include "qt/base/HeldText.h"
#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

constexpr qint64 kNoAnswer = 1000;  // milliseconds

/// Where nobody could tell before, or the program stopped in between, the toolkit waits some
/// seconds for it, gives up, and waits anew at the next question: this is the only one before an
/// answer has come.
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
  const HeldText held = ReadHeldText(QClipboard::Clipboard);
  if (!held.refusal.isEmpty()) throw RuntimeError(held.refusal.toStdString());
  if (held.data == nullptr || HoldsNothing(*held.data)) return {};
  if (!HoldsText(*held.data)) {
    throw RuntimeError("The clipboard holds no text. Nothing was pasted.");
  }
  return BytesOfMime(*held.data);
}

}  // namespace tessel
