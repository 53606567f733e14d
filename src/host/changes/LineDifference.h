// Two texts, line by line: what a difference view shows.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/TextTypes.h"

namespace tessel {

enum class RowKind : std::uint8_t { kSame, kRemoved, kAdded, kLeftOut };

/// One row. Lines count from 0 and end as the editor has it (CR, LF, CR LF).
struct DifferenceRow {
  static constexpr std::uint32_t kNone = UINT32_MAX;

  RowKind kind = RowKind::kSame;
  /// Its line of the text before. Of kAdded: the one that has become it, or kNone.
  std::uint32_t before = kNone;
  /// Its line of the text after. Of kRemoved: what has become of it, or kNone.
  std::uint32_t after = kNone;
  /// How many equal lines are left out here.
  std::uint32_t leftOut = 0;
};

/// The rows of one change: it has some of kRemoved, some of kAdded, or both.
struct ChangeRows {
  std::size_t first = 0;
  std::size_t count = 0;
};

/// The difference of two texts as rows: each change with some equal lines around it. Making one of
/// large texts takes a good part of a second.
class LineDifference {
 public:
  LineDifference(std::string before, std::string after);
  LineDifference(const LineDifference&) = delete;
  LineDifference& operator=(const LineDifference&) = delete;

  const std::vector<DifferenceRow>& Rows() const { return rows_; }
  const std::vector<ChangeRows>& Changes() const { return changes_; }
  /// False where the texts differ so much that the changes are coarse.
  bool Fewest() const { return fewest_; }

  /// Of a row, with its break; empty for kLeftOut.
  std::string_view LineOf(const DifferenceRow& row) const;
  /// What has become of a removed line, or what an added one has become of.
  std::optional<std::string_view> PartnerOf(const DifferenceRow& row) const;
  /// The length of the longest line of a row, in bytes.
  Position LongestLine() const { return longest_; }

 private:
  void AddSame(std::size_t before, std::size_t after, std::size_t count, bool first, bool last);
  void AddLines(std::size_t before, std::size_t after, std::size_t count);
  void AddLeftOut(std::size_t before, std::size_t after, std::size_t count);
  struct Edit;
  void AddChange(const Edit& edit);
  void AddRow(const DifferenceRow& row);

  std::string before_, after_;
  std::vector<std::string_view> linesBefore_, linesAfter_;
  std::vector<DifferenceRow> rows_;
  std::vector<ChangeRows> changes_;
  Position longest_ = 0;
  bool fewest_ = true;
};

}  // namespace tessel
