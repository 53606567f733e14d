// Services for programs without windows, and for tests.
#pragma once

#include <string>

#include "base/Event.h"
#include "services/Services.h"

namespace tessel {

class MemoryClipboard : public Clipboard {
 public:
  void Clear() override { text_.clear(); }
  void SetText(const std::string& text) override { text_ = text; }
  std::string GetText() override { return text_; }

 private:
  std::string text_;
};

class PlainScreenPointer : public ScreenPointer {
 public:
  PointerShape Shape() const override { return shape_; }
  void SetShape(PointerShape shape) override;

  /// The shape is another one now. Assigning the shape that stands is no change.
  Event<PointerShape> Changed;

 private:
  PointerShape shape_ = PointerShape::kDefault;
};

/// Nothing has the focus where nothing can be seen.
class IgnoredFocus : public Focus {
 public:
  void MoveTo(Control&) override {}
};

/// No window waits to be painted.
class IdleMessageLoop : public MessageLoop {
 public:
  void DoEvents() override {}
};

}  // namespace tessel
