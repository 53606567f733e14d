#include "Scenario.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <stdexcept>
#include <utility>

#include "CommandLines.h"

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

/// Cuts a line at its first blank.
std::pair<std::string, std::string> Cut(const std::string& line) {
  const auto blank = std::min(line.find(' '), line.size());
  return {line.substr(0, blank), line.substr(std::min(blank + 1, line.size()))};
}

class Reader {
 public:
  Reader(const std::vector<std::string>& lines, const Directory& directory)
      : lines_(lines), directory_(directory) {}

  std::vector<Step> Read() {
    while (line_ < lines_.size()) ReadLine(Next());
    return std::move(steps_);
  }

  std::size_t Line() const { return line_; }

 private:
  std::string Next() { return directory_.PutInto(lines_[line_++]); }

  void ReadLine(const std::string& line) {
    const auto text = line.find_first_not_of(' ');
    if (text == std::string::npos || line[text] == '#') return;
    if (text > 0) return Expect().AddLine(line.substr(text));
    if (IsExpectation(line)) return Expect().Add(Json::parse(line.substr(2)));
    steps_.push_back(StepOf(line));
  }

  /// What the last command's reply must hold.
  Expectations& Expect() {
    if (steps_.empty() || steps_.back().kind != Step::Kind::kCommand) {
      throw std::runtime_error("no command comes before what is expected");
    }
    steps_.back().expectedLines.push_back(static_cast<int>(line_));
    return steps_.back().expected;
  }

  Step NewStep(Step::Kind kind) const {
    Step step;
    step.kind = kind;
    step.line = static_cast<int>(line_);
    return step;
  }

  Step StepOf(const std::string& line) {
    using Make = Step (Reader::*)(Step::Kind, const std::string&);
    struct Word {
      std::string_view word;
      Step::Kind kind;
      Make make;
    };
    static constexpr std::array kWords = {
        Word{"options", Step::Kind::kOptions, &Reader::TextStep},
        Word{"missing", Step::Kind::kMissing, &Reader::NamedStep},
        Word{"write", Step::Kind::kWrite, &Reader::FileStep},
        Word{"holds", Step::Kind::kHolds, &Reader::FileStep},
    };
    const auto [word, rest] = Cut(line);
    const auto* const it = std::ranges::find(kWords, word, &Word::word);
    return it == kWords.end() ? CommandStep(line) : (this->*it->make)(it->kind, rest);
  }

  Step CommandStep(const std::string& line) {
    Step step = NewStep(Step::Kind::kCommand);
    step.words = line;
    if (IsCommand(line)) {
      step.text = line.substr(2);
    } else if (const auto command = CommandOf(line)) {
      step.text = command->dump();
    } else {
      throw std::runtime_error("unknown step \"" + line + "\"");
    }
    return step;
  }

  Step TextStep(Step::Kind kind, const std::string& rest) {
    Step step = NewStep(kind);
    step.text = rest;
    return step;
  }

  Step NamedStep(Step::Kind kind, const std::string& rest) {
    Step step = NewStep(kind);
    step.file = rest;
    return step;
  }

  Step FileStep(Step::Kind kind, const std::string& rest) {
    const auto [name, content] = Cut(rest);
    Step step = NamedStep(kind, name);
    if (content == "crlf") {
      step.bytes = Block("\r\n");
    } else if (content == "lf") {
      step.bytes = Block("\n");
    } else {
      step.bytes = BytesOfJson(content);
    }
    step.lastLine = static_cast<int>(line_);
    return step;
  }

  std::string Block(const std::string& lineBreak) {
    std::string bytes;
    while (line_ < lines_.size()) {
      const std::string line = Next();
      if (line == "end") return bytes;
      bytes += line + lineBreak;
    }
    throw std::runtime_error("a block without \"end\"");
  }

  const std::vector<std::string>& lines_;
  const Directory& directory_;
  std::size_t line_ = 0;
  std::vector<Step> steps_;
};

}  // namespace

Directory::Directory(std::string path) : path_(std::move(path)), upper_(Upper(path_)) {}

std::string Directory::PutInto(std::string line) const {
  if (path_.empty()) return line;
  ReplaceAll(line, "$DIR", path_);
  ReplaceAll(line, "$UPPERDIR", upper_);
  return line;
}

std::string Directory::TakeOutOf(std::string line) const {
  if (path_.empty()) return line;
  ReplaceAll(line, path_, "$DIR");
  ReplaceAll(line, upper_, "$UPPERDIR");
  return line;
}

bool IsCommand(std::string_view line) { return line.starts_with("> "); }
bool IsExpectation(std::string_view line) { return line.starts_with("< "); }

std::vector<std::string> ReadLines(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error(path + ": cannot be read");
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<Step> ReadScenario(const std::string& path, const Directory& directory) {
  const std::vector<std::string> lines = ReadLines(path);
  Reader reader(lines, directory);
  try {
    return reader.Read();
  } catch (const std::exception& error) {
    throw std::runtime_error(path + ":" + std::to_string(reader.Line()) + ": " + error.what());
  }
}

}  // namespace scenario
