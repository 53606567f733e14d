#include "host/changes/ShownLine.h"

#include <QCoreApplication>
#include <algorithm>

#include "qt/base/QtText.h"
#include "text/ChangedWords.h"
#include "text/LineEnds.h"

namespace tessel {
namespace {

constexpr Position kLead = 100;  // of a line of which a part is shown
constexpr char16_t kControlPictures = 0x2400;
constexpr char16_t kDelete = 0x7f;
constexpr char16_t kDeletePicture = 0x2421;
constexpr QChar kEllipsis(0x2026);

/// Translates bytes into columns as they are drawn.
class Columns {
 public:
  explicit Columns(int tabWidth) : tabWidth_(tabWidth) {}

  /// The columns that the bytes take behind what is there.
  ShownStretch Add(std::string_view bytes) {
    const qsizetype at = text_.size();
    for (const QChar character : ShownText(bytes)) AddCharacter(character);
    return {at, text_.size() - at};
  }
  void AddSign(QChar sign) { text_ += sign; }
  const QString& Text() const { return text_; }

 private:
  void AddCharacter(QChar character) {
    const char16_t code = character.unicode();
    if (code == '\t') {
      text_ += QString(tabWidth_ - text_.size() % tabWidth_, ' ');
    } else if (code < ' ') {
      text_ += QChar(static_cast<char16_t>(kControlPictures + code));
    } else {
      text_ += code == kDelete ? QChar(kDeletePicture) : character;
    }
  }

  int tabWidth_;
  QString text_;
};

std::vector<LineStretch> ChangedIn(const DifferenceRow& row, std::string_view line,
                                   std::string_view partner) {
  if (row.kind == RowKind::kRemoved) return ChangedWordsBetween(line, partner).before;
  return ChangedWordsBetween(partner, line).after;
}

QString NameOfBreak(std::string_view line) {
  const auto lineEnd = LineEndsOf(line).Only();
  return lineEnd ? QString::fromLatin1(NameOf(*lineEnd))
                 : QCoreApplication::translate("DifferenceWindow", "no line end");
}

/// The part of a line that is shown: from a little in front of what has changed.
LineStretch PartOf(std::string_view line, const std::vector<LineStretch>& changed) {
  const Position length = std::ssize(line);
  if (length <= kLongestShown) return {0, length};
  const Position first = changed.empty() ? 0 : changed.front().at;
  const Position start = std::clamp<Position>(first - kLead, 0, length - kLongestShown);
  return {start, kLongestShown};
}

}  // namespace

ShownLine ShownLineOf(const LineDifference& difference, const DifferenceRow& row, int tabWidth) {
  const std::string_view whole = difference.LineOf(row);
  const std::string_view line = WithoutBreak(whole);
  const auto partner = difference.PartnerOf(row);
  const std::string_view other = partner ? WithoutBreak(*partner) : std::string_view();
  const std::vector<LineStretch> changed =
      partner ? ChangedIn(row, line, other) : std::vector<LineStretch>();
  const LineStretch part = PartOf(line, changed);

  Columns columns(tabWidth);
  ShownLine shown;
  if (part.at > 0) columns.AddSign(kEllipsis);
  Position done = part.at;
  const Position end = part.at + part.length;
  for (const LineStretch& stretch : changed) {
    const Position from = std::clamp(stretch.at, done, end);
    const Position to = std::clamp(stretch.at + stretch.length, from, end);
    columns.Add(line.substr(done, from - done));
    if (to > from) shown.changed += columns.Add(line.substr(from, to - from));
    done = to;
  }
  columns.Add(line.substr(done, end - done));
  if (end < std::ssize(line)) columns.AddSign(kEllipsis);
  shown.text = columns.Text();
  if (partner && line == other) {
    const QString named = QStringLiteral(" \u21b5 ") + NameOfBreak(whole);
    shown.changed += {shown.text.size() + 1, named.size() - 1};
    shown.text += named;
  }
  return shown;
}

}  // namespace tessel
