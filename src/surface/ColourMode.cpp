#include "surface/ColourMode.h"

namespace tessel {
namespace {

constexpr const char* kColouredTag = "COLOR";
constexpr const char* kPlainTag = "BW";

}  // namespace

ColourMode ColourModeOf(const RichTextBox& editor) {
  if (editor.Tag() == kColouredTag) return ColourMode::kColoured;
  return editor.Tag() == kPlainTag ? ColourMode::kPlain : ColourMode::kNone;
}

void SetColourMode(RichTextBox& editor, ColourMode mode) {
  switch (mode) {
    case ColourMode::kColoured:
      return editor.SetTag(kColouredTag);
    case ColourMode::kPlain:
      return editor.SetTag(kPlainTag);
    case ColourMode::kNone:
      return editor.SetTag("");
  }
}

}  // namespace tessel
