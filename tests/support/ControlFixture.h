// The whole control among fake services, as a person and a host meet it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "control/ucTessel.h"
#include "support/FakeServices.h"
#include "support/SelectionText.h"
#include "surface/CurrentEditor.h"

namespace tessel::test {

/// An initialized control with its empty start tab.
class ControlFixture : public testing::Test {
 protected:
  ControlFixture() { control_.Initialize(); }

  HostedControls& Controls() { return control_.Controls(); }
  RichTextBox& Editor() { return CurrentEditor(Controls()); }

  /// Puts a text with its selection between "[" and "]" into the current document.
  void Given(std::string_view marked) { SetMarked(Editor(), marked); }
  /// The current document's text with its selection between "[" and "]".
  std::string Shown() { return Marked(Editor()); }

  /// What a person does: an item of the popup menu, a toolbar button, an item of its drop-down.
  void Choose(const std::string& item) { Controls().mnuRtbPopup.Choose(item); }
  void Press(std::string_view button) { Controls().tbToolBar.Press(button); }
  void PressItem(std::string_view button, std::string_view key) {
    Toolbar& bar = Controls().tbToolBar;
    for (int item = 1; item <= bar.MenuCount(button); ++item) {
      if (bar.MenuItem(button, item).key == key) return bar.PressMenuItem(button, item);
    }
    FAIL() << "no item " << key << " under " << button;
  }

  std::string ImageOfTab(int tab) { return Controls().tbsRtb.At(tab).image; }

  FakeServices services_;
  ucTessel control_{services_.Get()};
};

}  // namespace tessel::test
