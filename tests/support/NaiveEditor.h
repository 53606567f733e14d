// The editor's rules a second time, to compare the real ones with.
#pragma once

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "models/RichTextBox.h"
#include "text/Text.h"

namespace tessel::test {

/// The rules once more, character by character and without any thought of speed.
class NaiveEditor {
 public:
  struct Character {
    char byte;
    Colour colour;
  };
  struct Edit {
    std::size_t at;
    std::string removed;
    std::string inserted;
  };

  std::vector<Character> text;
  std::size_t start = 0;
  std::size_t length = 0;
  std::optional<Colour> held;
  std::vector<std::vector<Edit>> undo;
  bool typing = false;
  int changes = 0;

  std::string Text() const {
    std::string result;
    for (const Character& c : text) result += c.byte;
    return result;
  }

  void SetText(const std::string& bytes) {
    text.clear();
    for (const char byte : bytes) text.push_back({byte, kBlack});
    undo.clear();
    Move(0, 0);
    ++changes;
  }

  void Move(std::size_t newStart, std::size_t newLength) {
    start = newStart;
    length = newLength;
    held.reset();
    typing = false;
  }

  bool InsideBreak(std::size_t at) const {
    return at > 0 && at < text.size() && text[at - 1].byte == '\r' && text[at].byte == '\n';
  }

  void SetSelStart(std::size_t at) {
    at = std::min(at, text.size());
    Move(InsideBreak(at) ? at - 1 : at, 0);
  }

  void SetSelLength(std::size_t wanted) { Move(start, std::min(wanted, text.size() - start)); }

  Colour NextColour() const {
    if (held) return *held;
    if (length > 0) return text[start].colour;
    return start > 0 ? text[start - 1].colour : kBlack;
  }

  std::optional<Colour> SelColor() const {
    if (length == 0) return NextColour();
    for (std::size_t i = start; i < start + length; ++i) {
      if (text[i].colour != text[start].colour) return std::nullopt;
    }
    return text[start].colour;
  }

  void SetSelColor(Colour colour) {
    typing = false;
    if (length == 0) {
      held = colour;
      return;
    }
    for (std::size_t i = start; i < start + length; ++i) text[i].colour = colour;
    ++changes;
  }

  void Put(std::size_t at, std::size_t count, const std::string& inserted, Colour colour) {
    while (count-- > 0) text.erase(text.begin() + static_cast<Position>(at));
    for (std::size_t i = 0; i < inserted.size(); ++i) {
      text.insert(text.begin() + static_cast<Position>(at + i), Character{inserted[i], colour});
    }
  }

  void SetSelText(const std::string& inserted) {
    ++changes;
    if (inserted.empty() && length == 0) {
      typing = false;
      return;
    }
    undo.push_back({{start, Text().substr(start, length), inserted}});
    Put(start, length, inserted, NextColour());
    Move(start + inserted.size(), 0);
  }

  void TypeKey(char key) {
    const Edit edit{start, Text().substr(start, length), std::string(1, key)};
    if (typing) {
      undo.back().push_back(edit);
    } else {
      undo.push_back({edit});
    }
    Put(start, length, edit.inserted, NextColour());
    Move(start + 1, 0);
    typing = true;
    ++changes;
  }

  void Undo() {
    if (undo.empty()) return;
    auto step = undo.back();
    undo.pop_back();
    std::size_t caret = 0;
    // What was typed in a row makes one text.
    std::string typed;
    for (const Edit& edit : step) typed += edit.inserted;
    const std::size_t at = step.front().at;
    const Colour colour = !typed.empty() ? text[at].colour : at > 0 ? text[at - 1].colour : kBlack;
    Put(at, typed.size(), step.front().removed, colour);
    caret = at + step.front().removed.size();
    Move(caret, 0);
    ++changes;
  }

  bool Matches(std::size_t at, const std::string& wanted, int options) const {
    const auto fold = [&](char c) {
      const auto byte = static_cast<unsigned char>(c);
      return (options & kFindMatchCase) != 0 ? byte : ToLowerByte(byte);
    };
    for (std::size_t i = 0; i < wanted.size(); ++i) {
      if (fold(text[at + i].byte) != fold(wanted[i])) return false;
    }
    return (options & kFindWholeWord) == 0 || (!JoinedAt(at) && !JoinedAt(at + wanted.size()));
  }

  /// True when a word goes on across the place.
  bool JoinedAt(std::size_t at) const {
    const auto word = [&](std::size_t i) {
      const auto byte = static_cast<unsigned char>(text[i].byte);
      return std::isalnum(byte) != 0 || byte == '_' || byte >= 0x80;
    };
    return at > 0 && at < text.size() && word(at - 1) && word(at);
  }

  Position Find(const std::string& wanted, std::size_t from, std::size_t end, int options) {
    typing = false;
    if (wanted.empty()) return kNotFound;
    for (std::size_t at = from; at + wanted.size() <= std::min(end, text.size()); ++at) {
      if (Matches(at, wanted, options)) {
        Move(at, wanted.size());
        return static_cast<Position>(at);
      }
    }
    return kNotFound;
  }

  void Span(const std::string& set, bool forward, bool negate) {
    const auto goesOn = [&](std::size_t i) {
      return (set.find(text[i].byte) != set.npos) != negate;
    };
    std::size_t first = start;
    std::size_t last = start + length;
    if (forward) {
      while (last < text.size() && goesOn(last)) ++last;
      if (InsideBreak(last)) --last;
      first = std::min(first, last);
    } else {
      while (first > 0 && goesOn(first - 1)) --first;
      if (InsideBreak(first)) --first;
    }
    Move(first, last - first);
  }
};

}  // namespace tessel::test
