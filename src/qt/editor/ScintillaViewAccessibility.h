// What a screen reader sees of the editor, and what it costs while there is none.
#pragma once

#include <QAccessible>

class QsciScintillaBase;

namespace tessel {

/// QScintilla's accessible object counts the characters from the start of the text at every change
/// and at every painting, also when nobody listens. So the widget gets it (and the notifications
/// that feed it) only while a screen reader is active; otherwise a plain object stands in that has
/// the widget's name and role.
class ScintillaViewAccessibility : private QAccessible::ActivationObserver {
 public:
  explicit ScintillaViewAccessibility(QsciScintillaBase& widget);
  ~ScintillaViewAccessibility();
  ScintillaViewAccessibility(const ScintillaViewAccessibility&) = delete;
  ScintillaViewAccessibility& operator=(const ScintillaViewAccessibility&) = delete;

 private:
  void accessibilityActiveChanged(bool active) override;
  void ChooseNotifications(bool active);

  QsciScintillaBase& widget_;
};

}  // namespace tessel
