#include "qt/editor/ScintillaText.h"

#include <algorithm>
#include <array>
#include <span>

#include "qt/base/Utf8.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/LongLines.h"

namespace tessel {
namespace {

// What takes less than a millisecond to colour is not left out.
constexpr SciPosition kFar = 65'536;

/// Spreads what there is one of for each character over the bytes of the characters.
std::string OnePerByte(std::string_view perCharacter, std::string_view utf8) {
  std::string perByte;
  perByte.reserve(utf8.size());
  std::size_t next = 0;
  for (const char c : utf8) {
    perByte += StartsCharacter(c) ? perCharacter[next++] : perByte.back();
  }
  return perByte;
}

}  // namespace

ScintillaText::ScintillaText(ScintillaDocument& document)
    : document_(document),
      index_([this](SciPosition at, SciPosition length) { return Utf8(at, length); }),
      styles_(document) {}

void ScintillaText::NoteDeletion(SciPosition at, SciPosition length) {
  index_.Replace(OffsetOf(at), {CharactersOfUtf8(Utf8(at, length)), length}, {});
}

void ScintillaText::NoteInsertion(SciPosition at, SciPosition length) {
  index_.Replace(OffsetOf(at), {}, {CharactersOfUtf8(Utf8(at, length)), length});
}

void ScintillaText::Replace(Position at, Position removed, std::string_view inserted) {
  const SciPosition start = PositionOf(at);
  const SciPosition length = PositionOf(at + removed) - start;
  const std::string utf8 = Utf8OfBytes(inserted);
  document_.Replace(start, length, utf8);
  index_.Replace(at, {removed, length}, {std::ssize(inserted), std::ssize(utf8)});
}

void ScintillaText::BecomeEqualTo(std::string_view bytes) {
  const std::string wanted = Utf8OfBytes(bytes);
  index_.Assign({std::ssize(bytes), std::ssize(wanted)});
  const std::string_view shown = Utf8(0, document_.Size());
  const auto differ = std::ranges::mismatch(shown, wanted);
  auto head = differ.in1 - shown.begin();
  if (head == std::ssize(shown) && head == std::ssize(wanted)) return;
  const auto endsInside = [](std::string_view text, std::ptrdiff_t at) {
    return at < std::ssize(text) && !StartsCharacter(text[static_cast<std::size_t>(at)]);
  };
  while (endsInside(shown, head) || endsInside(wanted, head)) --head;
  const auto most = std::min(std::ssize(shown), std::ssize(wanted)) - head;
  std::ptrdiff_t tail = 0;
  while (tail < most && shown.end()[-tail - 1] == wanted.end()[-tail - 1]) ++tail;
  while (tail > 0 && !StartsCharacter(wanted.end()[-tail])) --tail;
  document_.Replace(
      head, std::ssize(shown) - tail - head,
      std::string_view(wanted).substr(static_cast<std::size_t>(head),
                                      wanted.size() - static_cast<std::size_t>(head + tail)));
}

SciPosition ScintillaText::StartOfCharacterAt(SciPosition at) const {
  while (at > 0 && at < document_.Size() && !StartsCharacter(Utf8(at, 1).front())) --at;
  return at;
}

void ScintillaText::ForgetColours(Position from) {
  const SciPosition start = PositionOf(from);
  if (start < document_.StyledEnd()) document_.ForgetStyles(start);
}

void ScintillaText::ColourUpTo(SciPosition end, std::string_view bytes, DrawnColours& colours) {
  ColourRange({document_.StyledEnd(), end}, bytes, colours);
}

void ScintillaText::ColourPage(SciPosition end, std::string_view bytes, DrawnColours& colours) {
  const SciRange page = document_.Page();
  const SciPosition styled = document_.StyledEnd();
  const SciPosition start = page.start - styled > kFar ? page.start : styled;
  styledFrom_ = start == styled ? std::min(styledFrom_, start) : start;
  ColourRange({start, std::max(page.end, end)}, bytes, colours);
}

void ScintillaText::AskForPage() {
  const SciPosition page = document_.Page().start;
  if (page >= styledFrom_) return;
  styledFrom_ = page > kFar ? page : 0;
  document_.SetStyledEnd(styledFrom_);
}

void ScintillaText::Outdate(Position from) {
  const SciPosition start = PositionOf(from);
  if (start < document_.StyledEnd()) document_.SetStyledEnd(start);
}

void ScintillaText::ColourApart(SciRange page, std::string_view bytes, DrawnColours& colours) {
  const SciPosition styled = document_.StyledEnd();
  ColourRange(page, bytes, colours);
  document_.SetStyledEnd(styled);
}

bool ScintillaText::IsFarBehindPage(SciPosition at) const {
  return at > document_.Page().end + kFar;
}

void ScintillaText::MakeStyles(std::span<const Colour> palette) {
  for (const Colour colour : palette) {
    const int style = styles_.StyleOf(colour);
    if (styles_.HasTwins()) styles_.TwinOf(style);
  }
}

void ScintillaText::ColourRange(SciRange range, std::string_view bytes, DrawnColours& colours) {
  const SciPosition start = StartOfCharacterAt(range.start);
  const SciPosition end = range.end;
  if (start >= end) return;
  const std::span<const Colour> palette = colours.Palette();
  std::array<char, 256> styleOfIndex{};
  std::ranges::transform(palette, styleOfIndex.begin(), [this](Colour colour) {
    return static_cast<char>(styles_.StyleOf(colour));
  });
  const Position first = OffsetOf(start);
  const Position length = OffsetOf(end) - first;
  std::string styles(static_cast<std::size_t>(length), '\0');
  std::ranges::transform(colours.Indices(first, first + length), styles.begin(), [&](char index) {
    return styleOfIndex[static_cast<unsigned char>(index)];
  });
  const auto coloured = bytes.substr(static_cast<std::size_t>(first), styles.size());
  if (HasLongLine(coloured, kLongLine)) {
    PartLongLines(coloured, TwinsOf({styleOfIndex.data(), palette.size()}), styles);
  }
  if (shownOfLines_) HideTails(bytes, first, styles);
  if (length != end - start) styles = OnePerByte(styles, Utf8(start, end - start));
  document_.SetStyles(start, styles);
}

void ScintillaText::ShowOfLines(std::optional<Position> bytes) {
  if (bytes == shownOfLines_) return;
  shownOfLines_ = bytes;
  ForgetColours(0);
}

void ScintillaText::HideTails(std::string_view whole, Position first, std::string& styles) {
  const std::string_view head = whole.substr(0, static_cast<std::size_t>(first));
  const auto lineStart = head.find_last_of("\r\n") + 1;  // 0 where there is no break
  HideLongTails(whole.substr(head.size(), styles.size()), first - static_cast<Position>(lineStart),
                *shownOfLines_, static_cast<char>(styles_.Hidden()), styles);
}

std::array<char, 256> ScintillaText::TwinsOf(std::string_view someStyles) {
  std::array<char, 256> twins{};
  for (const char style : someStyles) {
    const auto number = static_cast<unsigned char>(style);
    twins[number] = static_cast<char>(styles_.TwinOf(number));
  }
  return twins;
}

}  // namespace tessel
