#include "drive/qt/WidgetPlayer.h"

#include <QApplication>
#include <cstdlib>
#include <iostream>

#include "qt/base/TwipScale.h"

namespace tessel::drive {

ucTessel& WidgetPlayer::Open(const Services& services) {
  window_ = std::make_unique<QWidget>();
  tessel_ = new TesselWidget(services, widgets_, window_.get());
  window_->resize(tessel_->size());
  window_->show();
  window_->activateWindow();
  Settle();
  return tessel_->Tessel();
}

void WidgetPlayer::Close() {
  window_.reset();
  tessel_ = nullptr;
}

// A widget has whole pixels; the control gets the very size that was asked for.
void WidgetPlayer::Resize(ucTessel& control, Twips width, Twips height) {
  tessel_->resize(TwipsToPixels(width, tessel_->logicalDpiX()),
                  TwipsToPixels(height, tessel_->logicalDpiY()));
  window_->resize(tessel_->size());
  Settle();
  control.Resize(width, height);
}

void WidgetPlayer::Settle() { QApplication::processEvents(); }

// The stack below holds the toolkit's event handlers, through which no exception may pass.
void WidgetPlayer::Leave() {
  std::cout.flush();
  std::_Exit(0);
}

}  // namespace tessel::drive
