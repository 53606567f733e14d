// The control as a widget, among fake services.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <string>

#include "qt/TesselWidget.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "qt/services/QtScreen.h"
#include "support/FakeServices.h"

namespace tessel::test {

class TesselWidgetTest : public testing::Test {
 protected:
  TesselWidgetTest() {
    widget_.resize(widget_.sizeHint());
    widget_.show();
    QApplication::setActiveWindow(&widget_);
    QApplication::processEvents();
  }

  HostedControls& Controls() { return widget_.Tessel().Controls(); }
  RichTextBox& Editor() { return Controls().rtbCon[Controls().tbsRtb.Selected() - 1]; }

  template <class Widget = QWidget>
  Widget* WidgetFor(const Control& control) {
    return qobject_cast<Widget*>(widget_.WidgetFor(control));
  }

  /// Opens a document with that text in the current slot's editor, as loaded.
  void Open(const std::string& name, const std::string& text) {
    services_.files.Write("/con/" + name, text);
    widget_.Tessel().OpenFile("/con/" + name);
  }

  FakeServices services_;
  WidgetMap widgets_;
  TesselWidget widget_{services_.Get(), widgets_};
};

/// Counts how often an event is raised.
class Counter {
 public:
  explicit Counter(Event<>& event) : subscription_(event.Connect([this] { ++count_; })) {}
  int Count() const { return count_; }

 private:
  int count_ = 0;
  Subscription subscription_;
};

}  // namespace tessel::test
