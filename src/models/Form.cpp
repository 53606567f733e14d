#include "models/Form.h"

#include <utility>

namespace tessel {

Form::Form(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

void Form::SetCaption(std::string caption) {
  caption_ = std::move(caption);
  Refresh.Raise();
}

void Form::Show() {
  visible_ = true;
  Refresh.Raise();
}

void Form::Hide() {
  visible_ = false;
  Refresh.Raise();
}

}  // namespace tessel
