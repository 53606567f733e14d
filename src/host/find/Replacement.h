// What a match is replaced by.
#pragma once

#include <QString>
#include <string>
#include <string_view>
#include <vector>

#include "host/find/TextMatch.h"

class QRegularExpressionMatch;

namespace tessel {

/// A text as it stands or, beside a regular expression, one in which "\1" and "$1" (to 9; 0 is the
/// whole match, "${12}" any other) stand for a group, "\n", "\r" and "\r\n" for a
/// line break, "\t" for a tab, "\\"
/// and "$$" for themselves.
class Replacement {
 public:
  /// As it stands.
  explicit Replacement(const QString& text);
  /// For an expression with that many groups. `lineBreak` is that of the document.
  Replacement(const QString& text, int groups, std::string_view lineBreak);

  /// A sentence for the user when it cannot be used, else empty.
  const QString& Problem() const { return problem_; }
  bool HasGroups() const;
  /// `groups` are places in `text`, the whole match first; only needed where HasGroups.
  std::string For(std::string_view text, const std::vector<TextMatch>& groups) const;

 private:
  struct Part {
    std::string bytes;
    int group = -1;  // in place of bytes
  };

  void AddText(const QString& text);
  void AddSpecial(const QRegularExpressionMatch& special, int groups, std::string_view lineBreak);
  void AddGroup(int group, int groups);

  std::vector<Part> parts_;
  QString problem_;
};

}  // namespace tessel
