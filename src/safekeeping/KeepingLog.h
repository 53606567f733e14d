// When keys came and when what they typed was safe.
#pragma once

#include <string>

#include "posix/Posix.h"

namespace tessel {

/// Adds lines to a file, each with the milliseconds of the system's steady clock in front:
///   key            was received
///   taken N        a document's text, with all keys until then, was handed over to be kept
///   kept N         that text is on the disk, flushed
/// A text that a newer one overtakes is taken and never kept. What cannot be written is left out.
class KeepingLog {
 public:
  /// A FileProblem when the file cannot be opened.
  explicit KeepingLog(const std::string& path);

  void Key() { Note("key"); }
  /// Returns the text's number, from 1.
  int Taken();
  /// May come from another thread.
  void Kept(int text) { Note("kept " + std::to_string(text)); }

 private:
  void Note(const std::string& what);

  posix::Descriptor file_;
  int taken_ = 0;
};

}  // namespace tessel
