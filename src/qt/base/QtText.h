// Between the models' bytes and Qt's strings.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace tessel {

/// Bytes shown as Windows-1252, one character each.
QString ShownText(std::string_view bytes);
/// The bytes of a text on the screen; characters that Windows-1252 does not have (no box takes
/// them) become "?".
std::string TypedBytes(const QString& text);

/// A text with a file's name in it: read as UTF-8 where it is that, else as Windows-1252.
QString ShownName(std::string_view bytes);

/// The same with "&" doubled, for places where a single one marks a mnemonic.
QString WithoutMnemonics(QString text);

/// A text for a tooltip, which shows it as it is: the toolkit takes text that looks like markup for
/// markup, and would read the images that it names.
QString PlainToolTip(const QString& text);

}  // namespace tessel
