// An editor whose text and selection are shown as one text.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "models/RichTextBox.h"
#include "support/SelectionText.h"

namespace tessel::test {

inline constexpr Colour kRed = 0x0000C8;
inline constexpr Colour kGreen = 0x008000;
inline constexpr Colour kBlue = 0xC00000;

class RichTextBoxTest : public testing::Test {
 protected:
  RichTextBoxTest() : editor(controls, "rtbCon") {
    changeSubscription = editor.Change.Connect([this] { ++changes; });
  }

  void Set(std::string_view marked) {
    SetMarked(editor, marked);
    changes = 0;
  }
  std::string Now() const { return Marked(editor); }

  /// Paints a range and puts the selection back.
  void Paint(Position start, Position length, Colour colour) {
    const Position selStart = editor.SelStart();
    const Position selLength = editor.SelLength();
    editor.SetSelStart(start);
    editor.SetSelLength(length);
    editor.SetSelColor(colour);
    editor.SetSelStart(selStart);
    editor.SetSelLength(selLength);
    changes = 0;
  }
  Colour ColourAt(Position at) const { return editor.Store().ColourAt(at); }

  /// What a person types, key by key.
  void TypeKeys(std::string_view keys) {
    for (const char key : keys) {
      const RichTextBox::Gesture gesture(editor, true);
      editor.EditByHand(editor.SelStart(), editor.SelLength(), std::string(1, key));
    }
  }

  ControlSet controls;
  RichTextBox editor;
  Subscription changeSubscription;
  int changes = 0;
};

}  // namespace tessel::test
