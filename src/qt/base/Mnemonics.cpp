#include "qt/base/Mnemonics.h"

#include <QKeySequence>

namespace tessel {
namespace {

constexpr QChar kMark = '&';

/// Where the letter begins a word, else where it stands first; -1 where it does not.
qsizetype PlaceOf(QChar letter, const QString& caption) {
  for (qsizetype at = 0; at < caption.size(); ++at) {
    const bool begins = at == 0 || !caption[at - 1].isLetterOrNumber();
    if (begins && caption[at].toLower() == letter.toLower()) return at;
  }
  return caption.indexOf(letter, 0, Qt::CaseInsensitive);
}

}  // namespace

QChar MnemonicOf(const QString& caption) {
  const QKeySequence keys = QKeySequence::mnemonic(caption);
  return keys.isEmpty() ? QChar() : QChar(keys[0].key()).toLower();
}

QString WithMnemonic(const QString& caption, QChar letter) {
  const qsizetype at = PlaceOf(letter, caption);
  if (letter.isNull() || at < 0 || caption.contains(kMark)) return caption;
  return QString(caption).insert(at, kMark);
}

QString PlainCaption(const QString& caption) {
  QString plain;
  for (qsizetype at = 0; at < caption.size(); ++at) {
    if (caption[at] == kMark && at + 1 < caption.size()) ++at;
    plain += caption[at];
  }
  return plain;
}

}  // namespace tessel
