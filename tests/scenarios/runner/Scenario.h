// A scenario file: what a person does with the control, and what must come of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ReplyLines.h"

namespace scenario {

/// One step, in the order of the file.
///
///   press FileOpen       a command; see CommandLines.cpp
///       tab 1 is saved   indented: what its reply must hold; see ReplyPlaces.cpp
///   > {"do":...}         a command, as it is sent
///   < {...}              what its reply must hold, as JSON; see Match.h
///   write NAME "text"    writes a file; "text" is JSON, its code points up to U+00FF are bytes
///   write NAME crlf      the same with the lines that follow, up to a line "end"; each of them
///                        gets that break ("lf" is the other one)
///   holds NAME ...       the file must hold exactly this; written like "write"
///   missing NAME         there must be no such file
///   options ARG...       more arguments for the program (before the first command)
///
/// Lines that begin with "#" and blank lines are for the reader.
struct Step {
  enum class Kind { kCommand, kWrite, kHolds, kMissing, kOptions };
  Kind kind = Kind::kCommand;
  int line = 0;       ///< from 1
  int lastLine = 0;   ///< of a file's bytes
  std::string text;   ///< the command in JSON, or the options
  std::string file;   ///< relative to the directory
  std::string bytes;  ///< of the file
  std::string words;  ///< a command as it stands in the file
  Expectations expected;
  std::vector<int> expectedLines;  ///< that say what is expected
};

/// The empty directory in which a scenario is played, and which is the host program's directory.
/// "$DIR" stands for it in a scenario, "$UPPERDIR" for the same in capital letters; both stay as
/// they are if there is none.
class Directory {
 public:
  Directory() = default;
  explicit Directory(std::string path);

  const std::string& Path() const { return path_; }
  std::string PutInto(std::string line) const;
  std::string TakeOutOf(std::string line) const;

 private:
  std::string path_;
  std::string upper_;
};

/// The lines of a file, without their ends. Throws std::runtime_error if it cannot be read.
std::vector<std::string> ReadLines(const std::string& path);

/// Throws std::runtime_error that names file and line of a mistake.
std::vector<Step> ReadScenario(const std::string& path, const Directory& directory);

/// A line of the protocol and what stands behind its sign, "> " or "< ".
bool IsCommand(std::string_view line);
bool IsExpectation(std::string_view line);

}  // namespace scenario
