// The pages of the settings panel on the screen.
#pragma once

#include <QFrame>
#include <QWidget>
#include <memory>
#include <vector>

#include "control/HostedControls.h"
#include "platform/qt/WidgetMap.h"

namespace tessel {

/// Shows one picCon with its fraCon: a plain container that stands where the models say.
class PageView : public QWidget {
  Q_OBJECT

 public:
  PageView(PictureBox& page, Frame& frame, QWidget* parent);

  /// The widget that holds the page's controls.
  QWidget* Inside() { return frameView_; }

 private:
  void Draw();

  PictureBox& page_;
  Frame& frame_;
  QWidget* frameView_;
  Subscription pageRefresh_;
  Subscription frameRefresh_;
};

/// Builds the page of that index with all its controls and enters them in `widgets`.
PageView* MakeSettingsPage(HostedControls& controls, SettingsPage page, WidgetMap& widgets,
                           QWidget* parent);

}  // namespace tessel
