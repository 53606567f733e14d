// The files that are checked together.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "check/facts/FileFacts.h"
#include "check/facts/NameTable.h"
#include "check/facts/PanelDefines.h"
#include "words/ScriptWords.h"

namespace tessel::check {

/// What a check knows beside the files. All of it outlives the check.
struct Knowledge {
  std::span<const ScriptWord> words = {};  ///< none: nothing is said about commands
  /// The user files that missing items of the panel are taken from; empty: they get no fix.
  std::string_view olderTemplate = {}, newerTemplate = {};
};

/// A statement and the file that it stands in.
struct PlacedStatement {
  std::size_t file = 0;
  const Statement* statement = nullptr;
};

class Mod {
 public:
  Mod(std::span<const Source> sources, const Knowledge& knowledge);
  Mod(const Mod&) = delete;
  Mod& operator=(const Mod&) = delete;

  const std::vector<FileFacts>& Files() const { return files_; }
  const Knowledge& Known() const { return knowledge_; }
  const CommandTable& Commands() const { return commands_; }

  /// The defines that have the name of one before them.
  const std::vector<PlacedStatement>& RepeatedDefines() const { return repeatedDefines_; }
  /// The first define of a name, if any.
  std::optional<PlacedStatement> DefineOf(std::string_view name) const;
  /// Whether any file gives that name to a define, an action, a move, an ai, a state.
  bool Defines(std::string_view name) const;
  bool HasState(std::string_view name) const;
  /// The panel is for user files; where none is among the files, any may be a part of one.
  bool IsForPanel(std::size_t file) const { return !hasUserFile_ || IsUserFile(files_[file]); }
  /// The files include others, and all of these are given.
  bool IsWhole() const { return isWhole_; }
  bool Gives(std::string_view fileName) const;

  /// For each of AllPanelItems the define in that file, or null (see PanelDefines.h).
  const std::vector<const Statement*>& PanelDefines(std::size_t file) const {
    return panelDefines_[file];
  }

  /// "line 12", and the name of the file where that is another one.
  std::string PlaceText(std::size_t file, Position offset, std::size_t seenFrom) const;

 private:
  bool AreAllIncludesGiven() const;

  Knowledge knowledge_;
  CommandTable commands_;
  std::vector<FileFacts> files_;
  NameTable defines_, states_, otherNames_;
  std::vector<PlacedStatement> repeatedDefines_;
  std::vector<std::vector<const Statement*>> panelDefines_;
  bool hasUserFile_ = false;
  bool isWhole_ = false;
};

}  // namespace tessel::check
