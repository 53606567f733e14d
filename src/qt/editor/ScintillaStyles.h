// The styles by which a Scintilla document knows the colours of its text.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <span>
#include <vector>

#include "qt/editor/EditorTheme.h"
#include "qt/editor/ScintillaDocument.h"
#include "text/TextTypes.h"

namespace tessel {

/// Gives each colour a Scintilla style of its own, and paints the styles by a theme. The model's
/// colour and the paint are two things: the theme may paint a colour lighter or darker.
///
/// Scintilla leaves 248 styles, one of them for hidden text; should a text have more colours, the
/// rest share the last style.
class ScintillaStyles {
 public:
  explicit ScintillaStyles(ScintillaDocument& document) : document_(document) {}

  /// The style for a colour; makes one when it is new.
  int StyleOf(Colour colour);
  /// A second style of the same colour and paint; a twin's twin is the first. Where no style is
  /// left, the style itself.
  int TwinOf(int style);
  bool HasTwins() const { return !twins_.empty(); }
  /// The style of text that takes no place on the screen.
  int Hidden();
  /// All but the hidden one, in the order of their making.
  std::span<const int> InUse() const { return styles_; }
  Colour ColourOf(int style) const { return colourOfStyle_[static_cast<std::size_t>(style)]; }
  void SetTheme(const EditorTheme& theme);

 private:
  std::optional<int> Make(Colour colour);
  void Paint(int style) const;

  ScintillaDocument& document_;
  EditorTheme theme_;
  std::vector<int> styles_ = {0};  // in use, in the order of their making; style 0 is black
  std::array<Colour, 256> colourOfStyle_ = {};
  std::map<int, int> twins_;
};

}  // namespace tessel
