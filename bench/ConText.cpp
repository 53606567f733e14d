#include "ConText.h"

#include <array>
#include <cstdint>
#include <map>
#include <string_view>

namespace tessel::bench {
namespace {

/// Numbers that are the same in every run.
class Numbers {
 public:
  std::uint32_t Below(std::uint32_t limit) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::uint32_t>(state_ >> 33) % limit;
  }

 private:
  std::uint64_t state_ = 42;
};

constexpr std::array<std::string_view, 16> kWords = {
    "the",   "player", "health", "of",     "a",    "shot",  "hits",   "wall",
    "water", "when",   "it",     "amount", "more", "sound", "weapon", "enemy"};

std::string Sentence(Numbers& numbers, std::uint32_t words) {
  std::string text;
  for (std::uint32_t i = 0; i < words; ++i) {
    if (i > 0) text += ' ';
    text += kWords[numbers.Below(kWords.size())];
  }
  return text;
}

std::string Name(Numbers& numbers) {
  std::string name;
  const std::uint32_t length = 6 + numbers.Below(16);
  while (name.size() < length) name += static_cast<char>('A' + numbers.Below(26));
  return name;
}

std::string Padded(std::string text, std::size_t width) {
  if (text.size() < width) text.resize(width, ' ');
  return text + ' ';
}

std::string Number(Numbers& numbers) { return std::to_string(numbers.Below(1000)); }

/// One line of a hundred: what it is, by how many of a hundred lines are of its kind.
std::string UserLine(Numbers& numbers) {
  const std::uint32_t kind = numbers.Below(100);
  if (kind < 24) {
    const std::string define = Padded("define " + Name(numbers), 32) + Number(numbers);
    return numbers.Below(2) == 0 ? define : Padded(define, 40) + "// " + Sentence(numbers, 5);
  }
  if (kind < 44) return "definequote " + Number(numbers) + "  " + Sentence(numbers, 4);
  if (kind < 50) {
    return "definelevelname 1 " + Number(numbers) + " E2L1.map 02:00 01:07 " + Name(numbers);
  }
  if (kind < 84) {
    return Padded("definesound " + Name(numbers), 34) + Padded("sound.voc", 15) + "0   0   " +
           Number(numbers) + "  0   0";
  }
  if (kind < 92) return "// " + Sentence(numbers, 8);
  if (kind < 93) return "/* " + Sentence(numbers, 20) + "\r\n   " + Sentence(numbers, 12) + " */";
  return {};
}

std::string GameLine(Numbers& numbers) {
  const std::uint32_t kind = numbers.Below(100);
  const std::string indent(2 * numbers.Below(6), ' ');
  if (kind < 4) return "action A" + Name(numbers) + " 0 1 1 1 " + Number(numbers);
  if (kind < 6) return "actor " + Name(numbers) + " " + Number(numbers) + " A" + Name(numbers);
  if (kind < 8) return "enda\r\n";
  if (kind < 11) return "state " + Name(numbers);
  if (kind < 14) return "ends\r\n";
  if (kind < 18) return "move " + Name(numbers) + " " + Number(numbers);
  if (kind < 20) return "ai AI" + Name(numbers) + " A" + Name(numbers) + " seekplayer";
  if (kind < 28) return indent + "state " + Name(numbers);
  if (kind < 36) return indent + "// " + Sentence(numbers, 6);
  if (kind < 62) return indent + "ifactioncount " + Number(numbers) + " cactor " + Name(numbers);
  if (kind < 74) return indent + "{";
  if (kind < 86) return indent + "}";
  return indent + "else sound " + Name(numbers);
}

template <class Line>
std::string Generate(std::string text, std::size_t bytes, Line line) {
  Numbers numbers;
  text.reserve(bytes + 400);
  while (text.size() < bytes) text += line(numbers) + "\r\n";
  return text;
}

template <class Make>
const std::string& Cached(std::size_t bytes, std::map<std::size_t, std::string>& cache, Make make) {
  auto [it, isNew] = cache.try_emplace(bytes);
  if (isNew) it->second = make(bytes);
  return it->second;
}

// What a conversion cannot do without, and some of what it looks for.
constexpr std::string_view kUserHead =
    "/* the user file\r\n*/\r\n"
    "// MISC GAME SETTINGS\r\n// ******************\r\n"
    "define SWEARFREQUENCY 100\r\ndefine RESPAWNITEMTIME 768\r\ndefine MAXTRIPBOMBAMMO 10\r\n"
    "define SHRINKERBLASTRADIUS 650\r\ndefine HBOMBTOUGH 100\r\n"
    "gamestartup DEFAULTVISIBILITY GENERICIMPACTDAMAGE\r\n   FREEZERHURTOWNER\r\n"
    "definelevelname 0 8 E1L9.map 00:00 00:00 MULTIPLAYER 3\r\n"
    "music 0 ITSGREEN.MID\r\nmusic 1 STALKER.MID\r\n"
    "definesound SLIM_ROAM a.voc 0   0   3  0   0\r\n"
    "definesound BAR_MUSIC b.voc 0   0 3   0 6144\r\n";

}  // namespace

const std::string& UserFile(std::size_t bytes) {
  static std::map<std::size_t, std::string> cache;
  return Cached(bytes, cache,
                [](std::size_t size) { return Generate(std::string(kUserHead), size, UserLine); });
}

const std::string& GameFile(std::size_t bytes) {
  static std::map<std::size_t, std::string> cache;
  return Cached(bytes, cache, [](std::size_t size) { return Generate({}, size, GameLine); });
}

}  // namespace tessel::bench
