// The routing of toolbar buttons, drop-down items and popup items to the operations.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "services/Services.h"
#include "surface/DocumentList.h"

namespace tessel {

class Documents;
class Randomizer;
class Search;
class SettingsPanel;
class WordPanel;

/// Where commands go.
struct CommandTargets {
  const DocumentList& list;
  Toolbar& tbToolBar;
  const TabStrip& tbsCon;
  Clipboard& clipboard;
  Focus& focus;
  SettingsPanel& settings;
  Documents& documents;
  WordPanel& words;
  Search& search;
  Randomizer& randomizer;
  std::function<void()> convert;
  std::function<void()> applyColourMode;
};

/// Where a person finds a command.
enum class Surface { kButton, kDropDownItem, kPopupItem };

/// Is there a command of that key on that surface? Keys are compared exactly.
bool IsCommand(Surface surface, std::string_view key);

/// Runs commands by key; an unknown key does nothing.
class Commands {
 public:
  Commands() = default;
  /// The targets outlive the commands.
  explicit Commands(const CommandTargets& targets);

  void RunButton(std::string_view key) const;
  void RunPopupItem(std::string_view name) const;
  /// The item's key decides; an item of "FileNew" without a key is a recent file.
  void RunButtonMenuItem(std::string_view button, const ButtonMenuItem& item) const;

 private:
  std::shared_ptr<const CommandTargets> targets_;
};

}  // namespace tessel
