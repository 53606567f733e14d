// The routing of toolbar buttons, drop-down items and popup items to the operations.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "services/Services.h"
#include "surface/HostedControls.h"

namespace tessel {

class Documents;
class Randomizer;
class Search;
class SettingsPanel;
class WordPanel;

/// Where commands go.
struct CommandTargets {
  HostedControls& controls;
  const Services& services;
  SettingsPanel& settings;
  Documents& documents;
  WordPanel& words;
  Search& search;
  Randomizer& randomizer;
  std::function<void()> convert;
  std::function<void()> applyColourMode;
};

/// Commands by key. Keys are compared exactly; an unknown one does nothing.
class Commands {
 public:
  using Table = std::map<std::string, std::function<void()>, std::less<>>;

  void RunButton(std::string_view key) const { Run(buttons, key); }
  void RunPopupItem(std::string_view name) const { Run(popupItems, name); }
  /// The item's key decides; an item of "FileNew" without a key is a recent file.
  void RunButtonMenuItem(std::string_view button, const ButtonMenuItem& item) const;

  Table buttons;
  Table menuItems;
  Table popupItems;
  std::function<void(const std::string& path)> openRecent;

 private:
  static void Run(const Table& table, std::string_view key);
};

/// The targets outlive the commands.
Commands MakeCommands(const CommandTargets& targets);

}  // namespace tessel
