// The document inside of a Scintilla widget.
#pragma once

#include "qt/editor/ScintillaDocument.h"

class QsciScintillaBase;

namespace tessel {

/// Makes the widget's document one of UTF-8 without an undo history of its own. The widget must
/// outlive it.
class WidgetDocument : public ScintillaDocument {
 public:
  explicit WidgetDocument(QsciScintillaBase& widget);

  SciPosition Size() const override;
  std::string_view Utf8(SciPosition at, SciPosition length) const override;
  void Replace(SciPosition at, SciPosition removed, std::string_view inserted) override;
  SciRange Selection() const override;
  void Select(SciRange range) override;
  void HideSelection(bool hidden) override;
  bool HasFocus() const override;
  SciRange Page() const override;
  SciPosition StyledEnd() const override;
  void SetStyledEnd(SciPosition end) override;
  void ForgetStyles(SciPosition from) override;
  void SetStyles(SciPosition at, std::string_view styles) override;
  void PaintStyle(int style, const QColor& colour) override;
  void HideStyle(int style) override;

 private:
  SciPosition StartOfLine(long line) const;

  QsciScintillaBase& widget_;
};

}  // namespace tessel
