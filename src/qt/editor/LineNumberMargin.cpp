#include "qt/editor/LineNumberMargin.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr unsigned long kMargin = 0;  // its number among the margins
constexpr int kMarginPadding = 8;
constexpr qsizetype kFewestDigits = 3;

}  // namespace

LineNumberMargin::LineNumberMargin(QsciScintillaBase& widget) : widget_(widget) {
  widget_.SendScintilla(Sci::SCI_SETMARGINTYPEN, kMargin, long{Sci::SC_MARGIN_NUMBER});
}

void LineNumberMargin::FollowLines() {
  const auto lines = static_cast<qlonglong>(widget_.SendScintilla(Sci::SCI_GETLINECOUNT));
  const auto digits = std::max(kFewestDigits, QByteArray::number(lines).size());
  if (digits == digits_) return;
  digits_ = digits;
  Fit();
}

void LineNumberMargin::Fit() {
  const QByteArray widest(digits_, '9');
  const long width = widget_.SendScintilla(
      Sci::SCI_TEXTWIDTH, static_cast<uintptr_t>(Sci::STYLE_LINENUMBER), widest.constData());
  widget_.SendScintilla(Sci::SCI_SETMARGINWIDTHN, kMargin,
                        width + kMarginPadding + kMarginPadding / 2);
}

}  // namespace tessel
