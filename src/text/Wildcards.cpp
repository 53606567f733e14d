#include "text/Wildcards.h"

#include "text/Text.h"

namespace tessel {
namespace {

bool SameLetter(char a, char b) {
  return ToLowerByte(static_cast<unsigned char>(a)) == ToLowerByte(static_cast<unsigned char>(b));
}

}  // namespace

bool HasWildcards(std::string_view name) { return name.find_first_of("*?") != name.npos; }

bool MatchesWildcards(std::string_view name, std::string_view pattern) {
  std::size_t n = 0;
  std::size_t p = 0;
  // Where to go on when the last "*" has to take one byte more.
  std::size_t star = pattern.npos;
  std::size_t taken = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      taken = n;
    } else if (p < pattern.size() && (pattern[p] == '?' || SameLetter(pattern[p], name[n]))) {
      ++p;
      ++n;
    } else if (star != pattern.npos) {
      p = star + 1;
      n = ++taken;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', p) == pattern.npos;
}

}  // namespace tessel
