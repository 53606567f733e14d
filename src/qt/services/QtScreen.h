// The pointer, the focus and the event loop of the desktop.
#pragma once

#include "qt/base/WidgetMap.h"
#include "services/Services.h"

namespace tessel {

class QtScreenPointer : public ScreenPointer {
 public:
  ~QtScreenPointer() override { SetShape(PointerShape::kDefault); }

  PointerShape Shape() const override { return shape_; }
  void SetShape(PointerShape shape) override;

 private:
  PointerShape shape_ = PointerShape::kDefault;
};

class QtFocus : public Focus {
 public:
  /// The map in which the TesselWidget enters its widgets; it outlives this.
  explicit QtFocus(const WidgetMap& widgets) : widgets_(widgets) {}

  void MoveTo(Control& control) override;

 private:
  const WidgetMap& widgets_;
};

/// Runs what is pending, but nothing that a person does: no command begins inside another.
class QtMessageLoop : public MessageLoop {
 public:
  void DoEvents() override;
};

}  // namespace tessel
