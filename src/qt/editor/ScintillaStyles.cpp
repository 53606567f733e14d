#include "qt/editor/ScintillaStyles.h"

#include <Qsci/qsciscintillabase.h>

#include <algorithm>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr int kHidden = Sci::STYLE_MAX;

// Styles from STYLE_DEFAULT to STYLE_LASTPREDEFINED are Scintilla's own.
int StyleAfter(int style) {
  return style + 1 == Sci::STYLE_DEFAULT ? Sci::STYLE_LASTPREDEFINED + 1 : style + 1;
}

}  // namespace

int ScintillaStyles::StyleOf(Colour colour) {
  const auto has = [&](int style) { return ColourOf(style) == colour; };
  if (const auto it = std::ranges::find_if(styles_, has); it != styles_.end()) return *it;
  return Make(colour).value_or(styles_.back());
}

int ScintillaStyles::TwinOf(int style) {
  const auto [twin, isNew] = twins_.try_emplace(style, style);
  if (!isNew) return twin->second;
  const int second = Make(ColourOf(style)).value_or(style);
  twins_[style] = second;
  twins_[second] = style;
  return second;
}

int ScintillaStyles::Hidden() {
  document_.HideStyle(kHidden);
  return kHidden;
}

std::optional<int> ScintillaStyles::Make(Colour colour) {
  const int next = StyleAfter(styles_.back());
  if (next == kHidden) return std::nullopt;
  styles_.push_back(next);
  colourOfStyle_[static_cast<std::size_t>(next)] = colour;
  Paint(next);
  return next;
}

void ScintillaStyles::SetTheme(const EditorTheme& theme) {
  theme_ = theme;
  for (const int style : styles_) Paint(style);
  Hidden();  // whoever sets the looks of all styles makes them visible
}

void ScintillaStyles::Paint(int style) const {
  document_.PaintStyle(style, theme_.PaintOf(ColourOf(style)));
}

}  // namespace tessel
