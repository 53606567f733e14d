#include "qt/editor/EditorKeys.h"

namespace tessel {

std::string_view LineEndOfReturn(std::string_view text) {
  const auto at = text.find_first_of("\r\n");
  if (at == text.npos || text.substr(at, 2) == "\r\n") return "\r\n";
  return text.substr(at, 1);
}

}  // namespace tessel
