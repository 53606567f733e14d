// A narrow strip beside the scroll bar of an editor.
#pragma once

#include <QWidget>
#include <span>
#include <vector>

#include "host/find/TextMatch.h"
#include "host/view/ChangedPlaces.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {

/// The colours of the marks: each can be told from the strip, light or dark.
struct MarkColours {
  QColor ground;
  QColor change;
  QColor match;
  QColor caret;
};
MarkColours MarkColoursOf(const QPalette& palette);

/// Lines of a text, from 0.
struct LineSpan {
  long first = 0;
  long last = 0;

  friend bool operator==(const LineSpan&, const LineSpan&) = default;
};
/// The lines that a changed place stands in. A line break at its start belongs to the line before,
/// one at its end to the last line of the place.
LineSpan LinesOf(ScintillaView& view, const ChangedPlace& place);

/// Shows where in the whole text the caret, the changed lines (at the left) and the matches of a
/// search (at the right) are. A click on a mark goes there, one elsewhere scrolls there, and the
/// tip says what is under the pointer.
class MarkStrip : public QWidget {
  Q_OBJECT

 public:
  /// Stands in the view for as long as that lives.
  explicit MarkStrip(ScintillaView& view);

  void SetWanted(bool wanted);
  void SetMatches(const std::vector<TextMatch>& matches);
  void SetChanges(std::span<const ChangedPlace> changes);
  /// The caret may have moved.
  void FollowCaret();

  /// The rows of pixels in which there are marks, from the top.
  const std::vector<int>& MatchRows() const { return matchRows_; }
  const std::vector<int>& ChangeRows() const { return changeRows_; }
  int CaretRow() const;

 signals:
  /// The user wants to go to a stretch of the text.
  void wanted(Position start, Position end);

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void Place();
  void Reckon();
  int RowOf(long line) const;
  int RowOfOffset(Position offset) const;
  long LineAt(int row) const;
  const TextMatch* MatchAt(int row) const;
  const ChangedPlace* ChangeAt(int row) const;
  QString TipAt(int row) const;

  ScintillaView& view_;
  std::vector<TextMatch> matches_;
  std::vector<ChangedPlace> changes_;
  std::vector<int> matchRows_;
  std::vector<int> changeRows_;
  int caretRow_ = 0;
};

}  // namespace tessel
