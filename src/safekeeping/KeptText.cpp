#include "safekeeping/KeptText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <new>

#include "safekeeping/Hash.h"

namespace tessel {
namespace {

using posix::FileProblem;

// "ZanthMan text 1", then on a line of their own the seconds, the lengths of path and text in
// bytes, their hash and, where it is known, the base; then path and text.
constexpr std::string_view kMagic = "ZanthMan text 1\n";
constexpr std::size_t kLongestHead = 1U << 16U;

struct Head {
  KeptText text;
  std::uint64_t hash = 0;
  std::size_t length = 0;
};

/// Takes a number and the character behind it off the front.
std::optional<std::uint64_t> TakeNumber(std::string_view& text, char behind) {
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const auto used = static_cast<std::size_t>(end - text.data());
  if (error != std::errc() || used == text.size() || *end != behind) return std::nullopt;
  text.remove_prefix(used + 1);
  return number;
}

std::optional<Head> ParseHead(std::string_view file) {
  std::string_view rest = file;
  if (!rest.starts_with(kMagic)) return std::nullopt;
  rest.remove_prefix(kMagic.size());
  const auto seconds = TakeNumber(rest, ' ');
  const auto pathLength = seconds ? TakeNumber(rest, ' ') : std::nullopt;
  const auto size = pathLength ? TakeNumber(rest, ' ') : std::nullopt;
  const auto hash = size ? TakeNumber(rest, ' ') : std::nullopt;
  const auto last = size ? TakeNumber(rest, '\n') : std::nullopt;
  if (!last || *pathLength > rest.size()) return std::nullopt;
  const auto length = static_cast<std::size_t>(*pathLength);
  return Head{{std::string(rest.substr(0, length)), static_cast<long long>(*seconds),
               static_cast<std::size_t>(*size), false, hash ? last : std::nullopt},
              hash.value_or(*last),
              file.size() - rest.size() + length};
}

/// What can be said of a file of that size whose first bytes these are.
Head HeadOf(std::string_view start, std::size_t size, const PrivateFolder& folder,
            const std::string& name) {
  auto head = ParseHead(start);
  if (!head) return {{{}, folder.SecondsOf(name), size, true}, 0, 0};
  head->text.damaged = head->text.size != size - head->length;
  head->text.size = size - head->length;
  return *head;
}

}  // namespace

void WriteKeptText(const PrivateFolder& folder, const std::string& name, const KeptText& text,
                   std::string_view bytes) {
  const std::uint64_t hash = HashOf(bytes, HashOf(text.path));
  const std::string base = text.base ? ' ' + std::to_string(*text.base) : "";
  const std::string head = std::string(kMagic) + std::to_string(std::max(text.seconds, 0LL)) + ' ' +
                           std::to_string(text.path.size()) + ' ' + std::to_string(bytes.size()) +
                           ' ' + std::to_string(hash) + base + '\n' + text.path;
  folder.Write(name, head, bytes);
}

std::optional<KeptText> DescribeKeptText(const PrivateFolder& folder, const std::string& name) try {
  const auto size = folder.SizeOf(name);
  if (!size || *size == 0) return std::nullopt;
  return HeadOf(folder.ReadHead(name, std::min(*size, kLongestHead)), *size, folder, name).text;
} catch (const FileProblem&) {  // gone meanwhile, or not to be read
  return std::nullopt;
}

KeptBytes ReadKeptText(const PrivateFolder& folder, const std::string& name) try {
  std::string bytes = folder.Read(name);
  const Head head = HeadOf(bytes, bytes.size(), folder, name);
  KeptBytes text{head.text, {}};
  bytes.erase(0, head.length);
  text.damaged = text.damaged || HashOf(bytes, HashOf(text.path)) != head.hash;
  text.bytes = std::move(bytes);
  return text;
} catch (const std::bad_alloc&) {
  throw FileProblem(ENOMEM);
}

}  // namespace tessel
