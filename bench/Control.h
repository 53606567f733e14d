// A whole control with one document, as the figures are taken on it.
#pragma once

#include <string>

#include "control/ucTessel.h"
#include "support/FakeServices.h"

namespace tessel::bench {

struct Control {
  test::FakeServices services;
  ucTessel control{services.Get()};

  Control() {
    control.Initialize();
    // Released, so that the first press colours.
    control.Controls().tbToolBar.SetPressed("Colorize", false);
  }

  RichTextBox& Editor() { return control.Controls().rtbCon[0]; }
  void PressColorize() { control.Controls().tbToolBar.Press("Colorize"); }

  void Load(const std::string& text) {
    Editor().SetText(text);
    Editor().SetTag("");
    control.Controls().tbToolBar.SetPressed("Colorize", false);
  }
};

}  // namespace tessel::bench
