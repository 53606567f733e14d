#include "qt/base/QtText.h"

#include <QList>
#include <QStringDecoder>
#include <QTextDocument>

#include "text/Text.h"

namespace tessel {

QString ShownText(std::string_view bytes) {
  QString text;
  text.reserve(std::ssize(bytes));
  for (const char byte : bytes) {
    text += QChar(static_cast<char16_t>(CodePointOfByte(static_cast<unsigned char>(byte))));
  }
  return text;
}

std::string TypedBytes(const QString& text) {
  std::string bytes;
  for (const char32_t codePoint : text.toUcs4()) {
    const int byte = ByteOfCodePoint(codePoint);
    bytes += byte < 0 ? '?' : static_cast<char>(byte);
  }
  return bytes;
}

QString ShownName(std::string_view bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8);
  const QString text = decoder(QByteArrayView(bytes.data(), std::ssize(bytes)));
  return decoder.hasError() ? ShownText(bytes) : text;
}

QString WithoutMnemonics(QString text) { return text.replace('&', "&&"); }

// Any other text is plain to the toolkit, too, and stays as it is for assistive programs.
QString PlainToolTip(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  return "<p style='white-space:pre'>" + text.toHtmlEscaped() + "</p>";
}

}  // namespace tessel
