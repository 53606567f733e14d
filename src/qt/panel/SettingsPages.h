// The pages of the settings panel on the screen.
#pragma once

#include <QGridLayout>
#include <QWidget>

#include "qt/base/WidgetMap.h"
#include "surface/HostedControls.h"

namespace tessel {

/// A page's controls on the grid that all pages have in common: columns of one width, captions in
/// one row above their boxes. What is left on the right goes to the column behind the last.
class GridPage : public QWidget {
  Q_OBJECT

 public:
  static constexpr int kColumns = 3;

  explicit GridPage(QWidget* parent);

  QGridLayout* Grid() { return grid_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QGridLayout* grid_;
};

/// Shows one picCon with its fraCon: a plain container that stands where the models say.
class PageView : public QWidget {
  Q_OBJECT

 public:
  PageView(PictureBox& page, Frame& frame, QWidget* parent);

  /// The widget that holds the page's controls.
  GridPage* Inside() { return frameView_; }

 private:
  void Draw();

  PictureBox& page_;
  Frame& frame_;
  GridPage* frameView_;
  Subscription pageRefresh_;
  Subscription frameRefresh_;
};

/// Builds the page of that index with all its controls and enters them in `widgets`.
PageView* MakeSettingsPage(HostedControls& controls, SettingsPage page, WidgetMap& widgets,
                           QWidget* parent);

}  // namespace tessel
