// An editor with its widget, for tests.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QStringList>
#include <string>
#include <vector>

#include "drive/qt/EditorScreen.h"
#include "models/ControlSet.h"
#include "models/RichTextBox.h"
#include "qt/editor/ScintillaView.h"
#include "services/HeadlessServices.h"

namespace tessel {

struct ScintillaViewFixture : testing::Test {
  ControlSet controls;
  RichTextBox model{controls, "rtbCon"};
  MemoryClipboard clipboard;
  ScintillaView view{model, clipboard};
  drive::EditorScreen screen{view};
  QStringList refusals;

  ScintillaViewFixture() {
    QObject::connect(&view, &ScintillaView::textRefused, &view,
                     [this](const QString& why) { refusals << why; });
    view.resize(600, 300);
    view.show();
    view.setFocus();
    QApplication::setActiveWindow(&view);
    QApplication::processEvents();
  }

  void Press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {}) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, modifiers, text);
      QApplication::sendEvent(&view, &event);
    }
  }

  std::string Displayed() { return screen.Text(); }
  std::pair<Position, Position> Selected() const { return {model.SelStart(), model.SelLength()}; }

  void Select(Position start, Position length) {
    model.SetSelStart(start);
    model.SetSelLength(length);
  }
  void Park() { model.SetLeft(kParkedLeft); }
  void Unpark() { model.SetLeft(0); }
};

inline std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

}  // namespace tessel
