// What the window does when memory ends.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>

namespace tessel {

/// While one lives, an allocation of the main thread that gets nothing first has `keep` keep all
/// unsaved text, with some memory that is set aside for that; it returns false when it could not.
/// A command that runs then ends with its message. Without one the program ends: neither the
/// toolkit nor the editor's widget is written to go on. Only one can live at a time.
class MemoryEnd {
 public:
  using Question = std::function<bool()>;

  MemoryEnd(Question keep, Question commandRuns);
  ~MemoryEnd();
  MemoryEnd(const MemoryEnd&) = delete;
  MemoryEnd& operator=(const MemoryEnd&) = delete;

 private:
  [[noreturn]] static void OnNoMemory();
  bool Keep();

  Question keep_;
  Question commandRuns_;
  bool keeping_ = false;
  std::unique_ptr<char[]> reserve_;
};

}  // namespace tessel
