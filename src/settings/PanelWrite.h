// What the settings panel is about to write into the text.
#pragma once

#include <functional>
#include <string_view>

namespace tessel {

enum class PanelWrite {
  kValue,  ///< what was typed or picked in a value box, or drawn by the randomizer
  kYesNo,  ///< an option of a YES/NO setting
  kLevel,  ///< a level's map or title
  kWord,   ///< a script word
};

/// Asked in the middle of a command, when the text is about to take the place of the current
/// document's selection (to be inserted where that is empty). False: the document stays as it is.
using MayPanelWrite = std::function<bool(PanelWrite write, std::string_view text)>;

inline bool MayAlwaysWrite(PanelWrite /*write*/, std::string_view /*text*/) { return true; }

}  // namespace tessel
