// Texts, places and edits are those of a naive model, whatever is typed.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "lsp/documents/Positions.h"
#include "lsp/documents/Uri.h"
#include "support/ReadingChecks.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace tessel::lsp {
namespace {

using language::Range;

/// A text as its characters.
class NaiveText {
 public:
  NaiveText(std::u32string text, PositionEncoding encoding)
      : text_(std::move(text)), encoding_(encoding) {}

  std::string Utf8() const { return Utf8Of(text_); }
  static std::string Utf8Of(const std::u32string& text) {
    std::string utf8;
    for (const char32_t c : text) AppendUtf8(utf8, c);
    return utf8;
  }
  std::size_t Length() const { return text_.size(); }

  std::int64_t Units(char32_t c) const {
    std::string utf8;
    AppendUtf8(utf8, c);
    if (encoding_ == PositionEncoding::kUtf8) return std::ssize(utf8);
    return c > 0xFFFF ? 2 : 1;
  }

  /// The place in front of each character, and of the end.
  std::vector<Place> Places() const {
    std::vector<Place> places;
    Place at;
    for (std::size_t i = 0; i < text_.size(); ++i) {
      places.push_back(at);
      const bool half = text_.compare(i, 2, U"\r\n") == 0;
      if (text_[i] == U'\n' || (text_[i] == U'\r' && !half)) {
        at = {at.line + 1, 0};
      } else {
        at.character += Units(text_[i]);
      }
    }
    places.push_back(at);
    return places;
  }

  /// The character that a place means.
  std::size_t IndexOf(Place place) const {
    const std::vector<Place> places = Places();
    std::size_t index = 0;
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (places[i] > place) break;
      index = i;
    }
    // The end of a line is in front of its break.
    if (index < text_.size() && text_[index] == U'\n' && index > 0 && text_[index - 1] == U'\r') {
      --index;
    }
    return index;
  }

  void Replace(std::size_t from, std::size_t to, const std::u32string& text) {
    text_.replace(from, to - from, text);
  }

 private:
  std::u32string text_;
  PositionEncoding encoding_;
};

rc::Gen<std::u32string> AnyCharacters(std::size_t most) {
  return rc::gen::mapcat(rc::gen::inRange<std::size_t>(0, most), [](std::size_t count) {
    return rc::gen::container<std::u32string>(
        count, rc::gen::element<char32_t>(U'a', U'b', U' ', U'/', U'*', U'{', U'\n', U'\n', U'\r',
                                          U'\r', U'é', U'€', U'\u0081', U'\u0080', U'\u2028', U'ł',
                                          U'\U0001F600', U'\U0001F600', U'\t'));
  });
}

PositionEncoding AnyEncoding() {
  return *rc::gen::element(PositionEncoding::kUtf16, PositionEncoding::kUtf8);
}

Range All(const Document& document) { return {0, std::ssize(document.Bytes())}; }

RC_GTEST_PROP(DocumentProperties, APlaceIsThatOfTheNaiveText, ()) {
  const PositionEncoding encoding = AnyEncoding();
  const std::u32string characters = *AnyCharacters(60);
  const NaiveText naive(characters, encoding);
  const Document document("file:///A.CON", FromClient(naive.Utf8()), 1);
  RC_ASSERT(document.Utf8(All(document)) == naive.Utf8());
  const std::vector<Place> places = naive.Places();
  RC_ASSERT(places.size() == document.Bytes().size() + 1);
  for (std::size_t i = 0; i < places.size(); ++i) {
    const bool midst = i > 0 && characters.compare(i - 1, 2, U"\r\n") == 0;
    const auto offset = static_cast<Position>(i);
    RC_ASSERT(midst || PlaceOf(document, offset, encoding) == places[i]);
    const auto wanted = static_cast<Position>(naive.IndexOf(places[i]));
    RC_ASSERT(OffsetOf(document, places[i], encoding) == wanted);
  }
}

RC_GTEST_PROP(DocumentProperties, AnyPlaceMeansWhatItMeansInTheNaiveText, ()) {
  const PositionEncoding encoding = AnyEncoding();
  const NaiveText naive(*AnyCharacters(40), encoding);
  const Document document("file:///A.CON", FromClient(naive.Utf8()), 1);
  for (std::int64_t line = 0; line < 8; ++line) {
    for (std::int64_t character = 0; character < 12; ++character) {
      const Place place = {line, character};
      RC_ASSERT(OffsetOf(document, place, encoding) == static_cast<Position>(naive.IndexOf(place)));
    }
  }
}

RC_GTEST_PROP(DocumentProperties, ADocumentThatIsEditedIsTheOneThatIsReadAnew, ()) {
  const PositionEncoding encoding = AnyEncoding();
  NaiveText naive(*AnyCharacters(60), encoding);
  Document document("file:///A.CON", FromClient(naive.Utf8()), 1);
  document.Colours();
  const int edits = *rc::gen::inRange(1, 12);
  for (int i = 0; i < edits; ++i) {
    const Place a = {*rc::gen::inRange<std::int64_t>(0, 9), *rc::gen::inRange<std::int64_t>(0, 12)};
    const Place b = {*rc::gen::inRange<std::int64_t>(0, 9), *rc::gen::inRange<std::int64_t>(0, 12)};
    const std::u32string inserted = *AnyCharacters(8);
    const Json range = {
        {"start", {{"line", std::min(a, b).line}, {"character", std::min(a, b).character}}},
        {"end", {{"line", std::max(a, b).line}, {"character", std::max(a, b).character}}}};
    document.Replace(RangeFrom(range, document, encoding), FromClient(NaiveText::Utf8Of(inserted)));
    const std::size_t from = naive.IndexOf(std::min(a, b)), to = naive.IndexOf(std::max(a, b));
    naive.Replace(from, to, inserted);
    RC_ASSERT(document.Utf8(All(document)) == naive.Utf8());
    const Document fresh("file:///A.CON", FromClient(naive.Utf8()), 1);
    RC_ASSERT(document.Bytes() == fresh.Bytes());
    RC_ASSERT(std::ranges::equal(document.Foreigners(), fresh.Foreigners()));
    RC_ASSERT(document.Lines().Count() == fresh.Lines().Count());
    for (std::size_t line = 0; line < fresh.Lines().Count(); ++line) {
      RC_ASSERT(document.Lines().BeginOf(line) == fresh.Lines().BeginOf(line));
    }
    RC_ASSERT(tessel::test::ReadingDifference(document.Script()) == "");
    const Position length = std::ssize(fresh.Bytes());
    RC_ASSERT(document.Colours().ColoursOf(document.Bytes(), 0, length) ==
              fresh.Colours().ColoursOf(fresh.Bytes(), 0, length));
  }
}

TEST(ClientText, KeepsEveryByteOfAFile) {
  for (int byte = 0; byte < 256; ++byte) {
    std::string utf8;
    AppendUtf8(utf8, CodePointOfByte(static_cast<unsigned char>(byte)));
    const ClientText text = FromClient(utf8);
    EXPECT_EQ(text.bytes, std::string(1, static_cast<char>(byte)));
    EXPECT_TRUE(text.foreigners.empty());
  }
}

TEST(ClientText, NotesWhatACONFileCannotHold) {
  const ClientText text = FromClient("a\xC2\x80\xE2\x82\xAC\xF0\x9F\x98\x80");  // a U+0080 € 😀
  EXPECT_EQ(text.bytes.size(), 4U);
  EXPECT_EQ(text.foreigners, (std::vector<Foreigner>{{1, 0x80}, {3, 0x1F600}}));
}

TEST(Uris, AreReadAsPathsAndWrittenAgain) {
  EXPECT_EQ(PathOfUri("file:///a/b%20c.CON"), "/a/b c.CON");
  EXPECT_EQ(PathOfUri("file://localhost/a"), "/a");
  EXPECT_EQ(PathOfUri("FILE:/a"), "/a");
  EXPECT_EQ(PathOfUri("file://elsewhere/a"), std::nullopt);
  EXPECT_EQ(PathOfUri("untitled:Untitled-1"), std::nullopt);
  EXPECT_EQ(PathOfUri("file:///a%2"), std::nullopt);
  EXPECT_EQ(PathOfUri("file:///a%zz"), std::nullopt);
  EXPECT_EQ(PathOfUri("file:///a%00b"), std::nullopt);
  EXPECT_EQ(UriOfPath("/a/b c\xC3\xA9.CON"), "file:///a/b%20c%C3%A9.CON");
  EXPECT_EQ(KeyOfUri("file:///a%2Fb"), KeyOfUri("file:///a/b"));
}

}  // namespace
}  // namespace tessel::lsp
