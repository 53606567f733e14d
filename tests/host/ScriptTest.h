// A window whose documents a person looks into by keyboard.
#pragma once

#include <QSignalSpy>
#include <QStatusBar>
#include <string>

#include "HostFixture.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::test {

class ScriptTest : public HostTest {
 protected:
  ScriptTest() { QApplication::setActiveWindow(Run().window.get()); }

  MainWindow& Shown() { return *Run().window; }
  ScintillaView& View() { return *Shown().Control().CurrentEditorView(); }
  const DocumentList& Documents() { return Shown().Control().Tessel().OpenDocuments(); }
  RichTextBox& Text() { return Documents().CurrentEditor(); }
  std::string Said() { return Shown().statusBar()->currentMessage().toStdString(); }

  /// Opens files with these texts, one after the other; the last one is in front.
  template <class... Texts>
  void Open(const Texts&... texts) {
    int number = 0;
    (Shown().OpenFiles({directory_.Put(std::to_string(++number) + ".con", texts)}), ...);
  }
  void Select(int slot) { Documents().Select(Slot{slot}); }
  int Current() { return Index(Documents().Current().Place()); }
  /// Puts the caret behind the first place of that text in the current document.
  void PutCaretBehind(const std::string& text) {
    const auto at = Text().Bytes().find(text);
    ASSERT_NE(at, std::string_view::npos) << text;
    Text().SelectByHand(static_cast<Position>(at + text.size()), 0);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&View(), key, modifiers);
  }
  /// The current document's line with the selection in brackets.
  std::string Selected() {
    const auto bytes = Text().Bytes();
    const auto start = static_cast<std::size_t>(Text().SelStart());
    const auto end = static_cast<std::size_t>(Text().SelEnd());
    const auto line = start == 0 ? 0 : bytes.find_last_of("\r\n", start - 1) + 1;
    const auto behind = std::min(bytes.find_first_of("\r\n", end), bytes.size());
    return std::string(bytes.substr(line, start - line)) + "[" +
           std::string(bytes.substr(start, end - start)) + "]" +
           std::string(bytes.substr(end, behind - end));
  }
};

}  // namespace tessel::test
