// Characters and bytes of a UTF-8 text, found through the index and by counting.
#include <gtest/gtest.h>
// needs the one above
#include <rapidcheck/gtest.h>

#include "qt/base/Windows1252Qt.h"
#include "qt/editor/ScintillaIndex.h"

namespace tessel {
namespace {

struct IndexedText {
  std::string bytes;
  std::string utf8;
  ScintillaIndex index{[this](SciPosition at, SciPosition length) {
    return std::string_view(utf8).substr(static_cast<std::size_t>(at),
                                         static_cast<std::size_t>(length));
  }};

  void Replace(std::size_t at, std::size_t length, const std::string& inserted) {
    const std::string removed = Utf8OfBytes(std::string_view(bytes).substr(at, length));
    bytes.replace(at, length, inserted);
    utf8 = Utf8OfBytes(bytes);
    index.Replace(static_cast<Position>(at), {static_cast<Position>(length), std::ssize(removed)},
                  {std::ssize(inserted), std::ssize(Utf8OfBytes(inserted))});
  }
  SciPosition Counted(std::size_t offset) const {
    return std::ssize(Utf8OfBytes(std::string_view(bytes).substr(0, offset)));
  }
};

RC_GTEST_PROP(ScintillaIndexTest, FindsEveryCharacterAfterAnyReplacements, ()) {
  IndexedText text;
  const int count = *rc::gen::inRange(1, 12);
  for (int i = 0; i < count; ++i) {
    const auto at = *rc::gen::inRange<std::size_t>(0, text.bytes.size() + 1);
    const auto length = *rc::gen::inRange<std::size_t>(0, text.bytes.size() - at + 1);
    const auto size = *rc::gen::elementOf(std::vector<std::size_t>{0, 1, 50, 9000, 30000});
    const auto unit =
        *rc::gen::elementOf(std::vector<std::string>{"a", "\x80", "\xE4", "\x80 b\r\n"});
    std::string inserted;
    while (inserted.size() < size) inserted += unit;
    text.Replace(at, length, inserted);
    for (int look = 0; look < 5; ++look) {
      const auto offset = *rc::gen::inRange<std::size_t>(0, text.bytes.size() + 1);
      RC_ASSERT(text.index.PositionOf(static_cast<Position>(offset)) == text.Counted(offset));
      RC_ASSERT(text.index.OffsetOf(text.Counted(offset)) == static_cast<Position>(offset));
    }
    RC_ASSERT(text.index.Length() == std::ssize(text.bytes));
  }
}

}  // namespace
}  // namespace tessel
