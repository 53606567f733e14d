// What every hosted control has: a name, a place, and whether it can be seen and used.
#pragma once

#include <string>
#include <utility>

#include "base/Event.h"
#include "models/ControlSet.h"

namespace tessel {

/// A length or position in twips: 1/1440 inch.
using Twips = double;

/// Where a hidden control or editor waits ("parked"), out of everybody's sight.
inline constexpr Twips kParkedLeft = -20000;

/// The model of a control that stands on ucTessel or on one of its forms.
///
/// A model holds properties and raises events; it draws nothing. A view may watch Refresh and draw
/// the properties again, and turns what a person does into the gesture methods of the models
/// (Press, Pick, Type ...). Assigning a property never calls the gesture methods.
class Control {
 public:
  /// Registers the control under `name` in `set`; `index` is its 0-based place in a control array,
  /// or 0 for a control that stands alone.
  Control(ControlSet& set, std::string name, int index = 0);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  int Index() const { return index_; }

  Twips Left() const { return left_; }
  Twips Top() const { return top_; }
  Twips Width() const { return width_; }
  Twips Height() const { return height_; }
  bool Visible() const { return visible_; }
  bool Enabled() const { return enabled_; }
  const std::string& Tag() const { return tag_; }
  const std::string& Caption() const { return caption_; }

  void SetLeft(Twips left) { Assign(left_, left); }
  void SetTop(Twips top) { Assign(top_, top); }
  /// Sizes below 0 become 0.
  void SetWidth(Twips width) { Assign(width_, width < 0 ? 0 : width); }
  void SetHeight(Twips height) { Assign(height_, height < 0 ? 0 : height); }
  void SetVisible(bool visible) { Assign(visible_, visible); }
  void SetEnabled(bool enabled) { Assign(enabled_, enabled); }
  void SetTag(std::string tag) { Assign(tag_, std::move(tag)); }
  void SetCaption(std::string caption) { Assign(caption_, std::move(caption)); }

  /// The control on which this one stands, or null: a child of a disabled or parked control cannot
  /// be used.
  Control* Container() const { return container_; }
  void SetContainer(Control* container) { container_ = container; }

  /// True when a person can use the control: it and all its containers are enabled and not parked.
  bool Usable() const;

  /// Some property was assigned; a view draws it again. Raised at once, after every assignment,
  /// also of an equal value, and between two assignments that belong together: what is drawn may be
  /// a state on the way. A handler assigns nothing and plays no gesture.
  Event<> Refresh;

 protected:
  template <class T>
  void Assign(T& field, T value) {
    field = std::move(value);
    Refresh.Raise();
  }

 private:
  ControlSet& set_;
  std::string name_;
  int index_;
  Twips left_ = 0;
  Twips top_ = 0;
  Twips width_ = 0;
  Twips height_ = 0;
  bool visible_ = true;
  bool enabled_ = true;
  std::string tag_;
  std::string caption_;
  Control* container_ = nullptr;
};

/// A control with nothing but a caption.
class Label : public Control {
 public:
  using Control::Control;
};

/// A plain container.
class PictureBox : public Control {
 public:
  using Control::Control;
};

/// A container with a caption on its border.
class Frame : public Control {
 public:
  using Control::Control;
};

/// A clock that nothing uses; it is present because the control's design has one.
class Timer : public Control {
 public:
  using Control::Control;
};

}  // namespace tessel
