// A scenario file: what a person does with the control, and what must come of it.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace scenario {

using Json = nlohmann::ordered_json;

/// One step, in the order of the file.
///
///   > {"do":...}         a command
///   < {...}              what its reply must hold (several lines add up); see Match.h
///   write NAME "text"    writes a file; "text" is JSON, its code points up to U+00FF are bytes
///   write NAME crlf      the same with the lines that follow, up to a line "end"; each of them
///                        gets that break ("lf" is the other one)
///   holds NAME ...       the file must hold exactly this; written like "write"
///   missing NAME         there must be no such file
///   options ARG...       more arguments for the program (before the first command)
///
/// Lines that begin with "#" and blank lines are for the reader. "$DIR" stands for the scenario's
/// own empty directory, in which the files lie and which is the host program's directory;
/// "$UPPERDIR" is the same in capital letters.
struct Step {
  enum class Kind { kCommand, kExpect, kWrite, kHolds, kMissing, kOptions };
  Kind kind;
  int line = 0;      ///< from 1
  std::string text;  ///< command, expectation or options
  std::string file;  ///< relative to the directory
  std::string bytes;
};

/// Reads a scenario. Throws std::runtime_error that names file and line of a mistake.
std::vector<Step> ReadScenario(const std::string& path, const std::string& directory);

}  // namespace scenario
