// What another program gives that has the clipboard, without the toolkit's long patience.
#pragma once

#include <QClipboard>
#include <QMimeData>
#include <chrono>
#include <cstddef>
#include <memory>

namespace tessel {

/// How long a program that has the clipboard may keep a person waiting. A large text may take
/// longer, as long as it keeps coming.
inline constexpr std::chrono::milliseconds kOwnerPatience{750};
/// More is not taken from it: no editor can show it.
inline constexpr std::size_t kMostFromOwner = std::size_t{512} << 20U;

enum class OwnerAnswer {
  kNotAsked,  ///< nobody has it, or this program, or this is not X: the toolkit is not kept waiting
  kGiven,
  kNone,  ///< a stopped program, for instance
  kTooLarge
};

struct OwnersData {
  OwnerAnswer answer = OwnerAnswer::kNotAsked;
  std::unique_ptr<QMimeData> data;  ///< of kGiven: the text, or that there is something else
};

/// Asks the program that has the clipboard (or the selection) for its text.
OwnersData ReadFromOwner(QClipboard::Mode mode);

}  // namespace tessel
