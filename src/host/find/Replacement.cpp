#include "host/find/Replacement.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>

#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

class ReplacementTexts {
  Q_DECLARE_TR_FUNCTIONS(Replacement)
};

/// Everything that means something; the groups tell which it is.
const QRegularExpression& Special() {
  static const QRegularExpression special(QStringLiteral(
      "[\\\\$](\\d)|\\$\\{(\\d{1,4})\\}|\\\\(n|r\\\\n|r)|\\\\(t)|(\\\\\\\\|\\$\\$)|\\\\(.?)"));
  return special;
}

enum SpecialGroup { kDigit = 1, kNumber, kBreak, kTab, kItself, kUnknown };

}  // namespace

Replacement::Replacement(const QString& text) { AddText(text); }

Replacement::Replacement(const QString& text, int groups, std::string_view lineBreak) {
  qsizetype done = 0;
  auto specials = Special().globalMatch(text);
  while (specials.hasNext()) {
    const auto special = specials.next();
    AddText(text.mid(done, special.capturedStart() - done));
    AddSpecial(special, groups, lineBreak);
    done = special.capturedEnd();
  }
  AddText(text.mid(done));
}

void Replacement::AddText(const QString& text) {
  const auto bytes = BytesOfText(text);
  if (!bytes && problem_.isEmpty()) problem_ = RefusalOf(text);
  if (bytes && !bytes->empty()) parts_.push_back({*bytes});
}

void Replacement::AddSpecial(const QRegularExpressionMatch& special, int groups,
                             std::string_view lineBreak) {
  switch (special.lastCapturedIndex()) {
    case kDigit:
    case kNumber:
      return AddGroup(special.captured(special.lastCapturedIndex()).toInt(), groups);
    case kBreak:
      parts_.push_back({std::string(lineBreak)});
      return;
    case kTab:
      parts_.push_back({"\t"});
      return;
    case kItself:
      return AddText(special.captured().left(1));
    default:
      problem_ = ReplacementTexts::tr(
                     "\"%1\" means nothing in a replacement. For a \"\\\" write \"\\\\\".")
                     .arg(special.captured());
  }
}

void Replacement::AddGroup(int group, int groups) {
  if (group > groups) problem_ = ReplacementTexts::tr("The expression has no group %1.").arg(group);
  parts_.push_back({{}, group});
}

bool Replacement::HasGroups() const {
  return std::ranges::any_of(parts_, [](const Part& part) { return part.group >= 0; });
}

std::string Replacement::For(std::string_view text, const std::vector<TextMatch>& groups) const {
  std::string result;
  for (const Part& part : parts_) {
    if (part.group < 0) {
      result += part.bytes;
    } else {
      const TextMatch& place = groups.at(static_cast<std::size_t>(part.group));
      result += text.substr(place.start, place.length);
    }
  }
  return result;
}

}  // namespace tessel
