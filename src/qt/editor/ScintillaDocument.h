// What the mirror asks of a Scintilla document.
#pragma once

#include <QColor>
#include <string_view>

#include "qt/editor/ScintillaIndex.h"

namespace tessel {

/// A range of a Scintilla document, in its own UTF-8 bytes.
struct SciRange {
  SciPosition start = 0;
  SciPosition end = 0;

  bool operator==(const SciRange&) const = default;
};

/// A Scintilla document and as much of the widget around it as a mirror needs. Whoever changes the
/// text, the document announces each insertion and each deletion before it makes it; it asks for
/// styles before it draws text that has none.
class ScintillaDocument {
 public:
  virtual ~ScintillaDocument() = default;

  /// In UTF-8 bytes.
  virtual SciPosition Size() const = 0;
  /// A piece of the text itself; valid until the text changes.
  virtual std::string_view Utf8(SciPosition at, SciPosition length) const = 0;
  virtual void Replace(SciPosition at, SciPosition removed, std::string_view inserted) = 0;

  virtual SciRange Selection() const = 0;
  /// The caret stands at the end.
  virtual void Select(SciRange range) = 0;
  virtual void HideSelection(bool hidden) = 0;
  virtual bool HasFocus() const = 0;
  /// The lines that are in sight.
  virtual SciRange Page() const = 0;

  /// Up to there the text has styles; a change of the text takes it back to the change.
  virtual SciPosition StyledEnd() const = 0;
  /// Says that it is there, and draws nothing.
  virtual void SetStyledEnd(SciPosition end) = 0;
  /// Takes it back to `from`, and draws.
  virtual void ForgetStyles(SciPosition from) = 0;
  /// One style for each UTF-8 byte from `at` on. The text has styles up to their end then.
  virtual void SetStyles(SciPosition at, std::string_view styles) = 0;
  virtual void PaintStyle(int style, const QColor& colour) = 0;
  /// Text of that style takes no place on the screen.
  virtual void HideStyle(int style) = 0;
};

}  // namespace tessel
