#include "qt/KeyCodes.h"

namespace tessel {
namespace {

constexpr int kCodeOfF1 = 112;

}  // namespace

int KeyCodeOf(int qtKey) {
  const bool letter = qtKey >= Qt::Key_A && qtKey <= Qt::Key_Z;
  const bool digit = qtKey >= Qt::Key_0 && qtKey <= Qt::Key_9;
  if (letter || digit) return qtKey;
  if (qtKey >= Qt::Key_F1 && qtKey <= Qt::Key_F24) return kCodeOfF1 + (qtKey - Qt::Key_F1);
  return 0;
}

int ShiftMaskOf(Qt::KeyboardModifiers modifiers) {
  return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
         (modifiers & Qt::AltModifier ? 4 : 0);
}

}  // namespace tessel
