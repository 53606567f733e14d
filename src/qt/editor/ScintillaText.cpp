#include "qt/editor/ScintillaText.h"

#include <Qsci/qsciscintillabase.h>

#include <QWidget>
#include <algorithm>
#include <array>

#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

unsigned long Unsigned(long value) { return static_cast<unsigned long>(value); }

bool StartsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }

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

ScintillaText::ScintillaText(QsciScintillaBase& widget)
    : widget_(widget),
      index_([this](SciPosition at, SciPosition length) { return Utf8(at, length); }),
      colours_(widget) {
  widget_.SendScintilla(Sci::SCI_SETCODEPAGE, Unsigned(Sci::SC_CP_UTF8));
  widget_.SendScintilla(Sci::SCI_SETUNDOCOLLECTION, 0UL);
}

SciPosition ScintillaText::Size() const { return widget_.SendScintilla(Sci::SCI_GETLENGTH); }

SciPosition ScintillaText::ColouredEnd() const {
  return widget_.SendScintilla(Sci::SCI_GETENDSTYLED);
}

std::string_view ScintillaText::Utf8(SciPosition at, SciPosition length) const {
  if (length == 0) return {};
  const auto address =
      widget_.SendScintilla(Sci::SCI_GETRANGEPOINTER, Unsigned(at), static_cast<long>(length));
  return {reinterpret_cast<const char*>(address), static_cast<std::size_t>(length)};
}

void ScintillaText::NoteDeletion(SciPosition at, SciPosition length) {
  index_.Replace(OffsetOf(at), {CharactersOfUtf8(Utf8(at, length)), length}, {});
}

void ScintillaText::NoteInsertion(SciPosition at, SciPosition length) {
  index_.Replace(OffsetOf(at), {}, {CharactersOfUtf8(Utf8(at, length)), length});
}

void ScintillaText::ReplaceUtf8(SciPosition at, SciPosition removed, std::string_view inserted) {
  widget_.SendScintilla(Sci::SCI_SETTARGETRANGE, Unsigned(at), at + removed);
  widget_.SendScintilla(Sci::SCI_REPLACETARGET, static_cast<uintptr_t>(inserted.size()),
                        inserted.data() == nullptr ? "" : inserted.data());
}

void ScintillaText::Replace(Position at, Position removed, std::string_view inserted) {
  const SciPosition start = PositionOf(at);
  const SciPosition length = PositionOf(at + removed) - start;
  const std::string utf8 = Utf8OfBytes(inserted);
  ReplaceUtf8(start, length, utf8);
  index_.Replace(at, {removed, length}, {std::ssize(inserted), std::ssize(utf8)});
}

void ScintillaText::BecomeEqualTo(std::string_view bytes) {
  const std::string wanted = Utf8OfBytes(bytes);
  index_.Assign({std::ssize(bytes), std::ssize(wanted)});
  const std::string_view shown = Utf8(0, Size());
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
  ReplaceUtf8(
      head, std::ssize(shown) - tail - head,
      std::string_view(wanted).substr(static_cast<std::size_t>(head),
                                      wanted.size() - static_cast<std::size_t>(head + tail)));
}

void ScintillaText::ForgetColours(Position from) {
  const SciPosition start = PositionOf(from);
  if (start >= ColouredEnd()) return;
  widget_.SendScintilla(Sci::SCI_STARTSTYLING, Unsigned(start), 0L);
  widget_.viewport()->update();
}

void ScintillaText::ColourUpTo(SciPosition end, const TextStore& store) {
  const SciPosition start = ColouredEnd();
  if (start >= end) return;
  std::array<char, 256> styleOfIndex{};
  std::ranges::transform(store.Palette(), styleOfIndex.begin(), [this](Colour colour) {
    return static_cast<char>(colours_.StyleOf(colour));
  });
  const Position first = OffsetOf(start);
  const Position length = OffsetOf(end) - first;
  std::string styles(static_cast<std::size_t>(length), '\0');
  std::ranges::transform(
      store.ColourIndices().substr(first, length), styles.begin(),
      [&](char index) { return styleOfIndex[static_cast<unsigned char>(index)]; });
  if (length != end - start) styles = OnePerByte(styles, Utf8(start, end - start));
  widget_.SendScintilla(Sci::SCI_STARTSTYLING, Unsigned(start), 0L);
  widget_.SendScintilla(Sci::SCI_SETSTYLINGEX, static_cast<uintptr_t>(styles.size()),
                        styles.c_str());
}

void ScintillaText::AskForAllColours() {
  widget_.SendScintilla(Sci::SCI_COLOURISE, Unsigned(ColouredEnd()), -1L);
}

std::string ScintillaText::Bytes() const {
  return BytesOfUtf8(Utf8(0, Size())).value_or(std::string());
}

std::vector<ColourRun> ScintillaText::Runs() const {
  const auto size = static_cast<std::size_t>(Size());
  std::string cells(2 * size + 2, '\0');  // a character and its style, by turns
  widget_.SendScintilla(Sci::SCI_GETSTYLEDTEXT, 0L, Size(), cells.data());
  std::vector<ColourRun> runs;
  Position offset = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (!StartsCharacter(cells[2 * i])) continue;
    const Colour colour = colours_.ColourOf(static_cast<unsigned char>(cells[2 * i + 1]));
    if (runs.empty() || runs.back().colour != colour) runs.push_back({offset, 0, colour});
    ++runs.back().length;
    ++offset;
  }
  return runs;
}

}  // namespace tessel
