// Texts with what the converter wrote shown in them: "define A{ new}".
#pragma once

#include <string>

#include "converter/EditPrimitives.h"
#include "models/RichTextBox.h"

namespace tessel::test {

/// The editor's text with "{" and "}" around its red runs.
inline std::string RedMarked(const RichTextBox& editor) {
  std::string marked;
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    const bool red = run.colour == kConvertedRed;
    if (red) marked += '{';
    marked += editor.Bytes().substr(static_cast<std::size_t>(run.start),
                                    static_cast<std::size_t>(run.length));
    if (red) marked += '}';
  }
  return marked;
}

}  // namespace tessel::test
