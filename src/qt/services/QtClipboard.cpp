#include "qt/services/QtClipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "qt/base/Windows1252Qt.h"

namespace tessel {

void QtClipboard::Clear() { QGuiApplication::clipboard()->clear(); }

void QtClipboard::SetText(const std::string& text) {
  QGuiApplication::clipboard()->setMimeData(MimeOfBytes(text).release());
}

std::string QtClipboard::GetText() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  return data != nullptr && HoldsText(*data) ? BytesOfMime(*data) : std::string();
}

}  // namespace tessel
