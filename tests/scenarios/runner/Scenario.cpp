#include "Scenario.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace scenario {
namespace {

void ReplaceAll(std::string& text, const std::string& from, const std::string& to) {
  for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
    text.replace(at, from.size(), to);
  }
}

std::string Upper(std::string text) {
  std::ranges::transform(text, text.begin(), [](char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  });
  return text;
}

std::string BytesOfJson(const std::string& json) {
  const auto utf8 = Json::parse(json).get<std::string>();
  std::string bytes;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    auto c = static_cast<unsigned char>(utf8[i]);
    if (c >= 0x80) {
      const auto tail = static_cast<unsigned char>(utf8.at(++i));
      c = static_cast<unsigned char>(((c & 0x03) << 6) | (tail & 0x3F));
    }
    bytes += static_cast<char>(c);
  }
  return bytes;
}

class Reader {
 public:
  Reader(std::istream& in, std::string directory)
      : in_(in), directory_(std::move(directory)), upper_(Upper(directory_)) {}

  std::vector<Step> Read() {
    std::vector<Step> steps;
    std::string line;
    while (Next(line)) {
      if (line.empty() || line.front() == '#') continue;
      steps.push_back(StepOf(line));
    }
    return steps;
  }

  int Line() const { return line_; }

 private:
  bool Next(std::string& line) {
    if (!std::getline(in_, line)) return false;
    ++line_;
    ReplaceAll(line, "$DIR", directory_);
    ReplaceAll(line, "$UPPERDIR", upper_);
    return true;
  }

  Step StepOf(const std::string& line) {
    const auto blank = std::min(line.find(' '), line.size());
    const std::string word = line.substr(0, blank);
    const std::string rest = line.substr(std::min(blank + 1, line.size()));
    if (word == ">") return {Step::Kind::kCommand, line_, rest, {}, {}};
    if (word == "<") return {Step::Kind::kExpect, line_, rest, {}, {}};
    if (word == "options") return {Step::Kind::kOptions, line_, rest, {}, {}};
    if (word == "missing") return {Step::Kind::kMissing, line_, {}, rest, {}};
    if (word == "write") return FileStep(Step::Kind::kWrite, rest);
    if (word == "holds") return FileStep(Step::Kind::kHolds, rest);
    throw std::runtime_error("unknown step \"" + word + "\"");
  }

  Step FileStep(Step::Kind kind, const std::string& rest) {
    const auto blank = std::min(rest.find(' '), rest.size());
    Step step{kind, line_, {}, rest.substr(0, blank), {}};
    const std::string content = rest.substr(std::min(blank + 1, rest.size()));
    if (content == "crlf") {
      step.bytes = Block("\r\n");
    } else if (content == "lf") {
      step.bytes = Block("\n");
    } else {
      step.bytes = BytesOfJson(content);
    }
    return step;
  }

  std::string Block(const std::string& lineBreak) {
    std::string bytes;
    std::string line;
    while (Next(line)) {
      if (line == "end") return bytes;
      bytes += line + lineBreak;
    }
    throw std::runtime_error("a block without \"end\"");
  }

  std::istream& in_;
  std::string directory_;
  std::string upper_;
  int line_ = 0;
};

}  // namespace

std::vector<Step> ReadScenario(const std::string& path, const std::string& directory) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + ": cannot be read");
  Reader reader(in, directory);
  try {
    return reader.Read();
  } catch (const std::exception& error) {
    throw std::runtime_error(path + ":" + std::to_string(reader.Line()) + ": " + error.what());
  }
}

}  // namespace scenario
