#include "Turning.h"

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "CommandLines.h"
#include "Edits.h"
#include "Scenario.h"

namespace scenario {
namespace {

/// A number that JSON would not write as it stands in the command.
bool HasOtherNumber(const Json& command, const std::string& text) {
  if (command.is_number_float()) return text.find(command.dump()) == std::string::npos;
  for (const Json& value : command) {
    if (value.is_structured() || value.is_number_float()) {
      if (HasOtherNumber(value, text)) return true;
    }
  }
  return false;
}

std::optional<std::string> CommandInWords(const Step& step) {
  if (!IsCommand(step.words)) return std::nullopt;
  const Json command = Json::parse(step.text, nullptr, false);
  if (!command.is_object() || HasOtherNumber(command, step.text)) return std::nullopt;
  return LineOf(command);
}

std::vector<std::string> ExpectedInWords(const Step& step) {
  std::vector<std::string> lines;
  for (const Json& one : step.expected.All()) {
    for (const std::string& line : LinesOf(one)) lines.push_back("    " + line);
  }
  return lines;
}

std::vector<std::string> ExpectedInJson(const Step& step) {
  std::vector<std::string> lines;
  for (const Json& one : step.expected.All()) lines.push_back("< " + TextOf(one));
  return lines;
}

std::optional<std::string> CommandInJson(const Step& step) { return "> " + step.text; }

using Command = std::function<std::optional<std::string>(const Step&)>;
using Expected = std::function<std::vector<std::string>(const Step&)>;

std::string Turned(const std::string& scenario, const Command& command, const Expected& expected) {
  Edits edits;
  for (const Step& step : ReadScenario(scenario, Directory())) {
    if (step.kind != Step::Kind::kCommand) continue;
    if (const auto line = command(step)) {
      edits.Remove(step.line);
      edits.Insert(step.line, {*line});
    }
    for (const int line : step.expectedLines) edits.Remove(line);
    edits.Insert(step.line, expected(step));
  }
  return edits.Apply(ReadLines(scenario));
}

}  // namespace

std::string InWords(const std::string& scenario) {
  return Turned(scenario, CommandInWords, ExpectedInWords);
}

std::string InJson(const std::string& scenario) {
  return Turned(scenario, CommandInJson, ExpectedInJson);
}

}  // namespace scenario
