// Letters of captions that are keys with Alt.
#pragma once

#include <QString>

namespace tessel {

/// The letter that is marked, in lower case; null where none is.
QChar MnemonicOf(const QString& caption);

/// The caption with that letter marked: where it begins a word, else where it stands first. A
/// caption that has a mark keeps it, and one without the letter stays as it is.
QString WithMnemonic(const QString& caption, QChar letter);

/// The caption without its mark, as people read it.
QString PlainCaption(const QString& caption);

}  // namespace tessel
