#include "tools/modMenuOptions.h"

namespace tessel {
namespace {

std::string_view WithoutLineBreak(std::string_view text) {
  if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
  if (text.ends_with('\n') || text.ends_with('\r')) return text.substr(0, text.size() - 1);
  return text;
}

}  // namespace

std::string RemarkBlock(std::string_view text) { return "/* " + std::string(text) + " */\n"; }

std::string RemarkLine(std::string_view text) { return "// " + std::string(text); }

std::string IndentText(std::string_view text) {
  std::string result = "\t";
  for (std::size_t i = 0; i < text.size(); ++i) {
    result += text[i];
    if (result.ends_with("\r\n") && text[i] == '\n') result += '\t';
  }
  return result;
}

std::string UnremarkText(std::string_view text) {
  const std::string_view block = WithoutLineBreak(text);
  if (block.size() >= 4 && block.starts_with("/*") && block.ends_with("*/")) {
    std::string_view inner = block.substr(2, block.size() - 4);
    if (inner.starts_with(' ')) inner.remove_prefix(1);
    if (inner.ends_with(' ')) inner.remove_suffix(1);
    return std::string(inner);
  }
  if (text.starts_with("//")) {
    text.remove_prefix(text.starts_with("// ") ? 3 : 2);
  }
  return std::string(text);
}

}  // namespace tessel
