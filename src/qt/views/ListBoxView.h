// A list box on the screen.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "models/Lists.h"

namespace tessel {

/// Shows a ListBox, as many whole rows as it has room for. A click, a double click and the arrow
/// keys are a person's picks.
class ListBoxView : public QListWidget {
  Q_OBJECT

 public:
  ListBoxView(ListBox& model, QWidget* parent);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Draw();
  void DrawEntries();
  void ShareRoomAmongRows();

  ListBox& model_;
  std::vector<std::string> shown_;
  Subscription refresh_;
};

}  // namespace tessel
