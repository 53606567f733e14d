// What a command has done, as far as the user is told.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "surface/Document.h"

namespace tessel {

enum class ChangeKind {
  kRandomized,
  kConverted,
  kReplaced,
  kLines,  ///< a command that changes lines, of which there is no more to be said
  kReloaded,
  kBackupPutBack,
};

/// A document that a command has changed.
struct ChangedDocument {
  Slot slot{};
  std::uint64_t revision = 0;  ///< of its text since then
  QString name;
};

struct ChangeReport {
  ChangeKind kind = ChangeKind::kLines;
  std::vector<ChangedDocument> documents = {};
  std::size_t replaced = 0;                ///< of kReplaced
  std::optional<std::string> before = {};  ///< the text before, where the history does not have it
};

struct ChangeCounts {
  std::size_t lines = 0;
  std::optional<std::size_t> values = {};
};

/// "31 values changed"; what is not counted is not said.
QString SentenceOf(const ChangeReport& report, const ChangeCounts& counts);

/// "user.con saved, 35,392 bytes".
QString SavedSentence(const QString& name, std::size_t bytes);

}  // namespace tessel
