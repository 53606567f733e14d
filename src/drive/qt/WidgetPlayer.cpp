#include "drive/qt/WidgetPlayer.h"

#include <QApplication>
#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <iterator>

#include "drive/qt/WidgetComparison.h"
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

std::vector<std::string> WidgetPlayer::Differences() const {
  std::vector<std::string> sentences;
  std::ranges::transform(CompareWidgets(*tessel_), std::back_inserter(sentences), SentenceOf);
  return sentences;
}

// The stack below holds the toolkit's event handlers, through which no exception may pass.
void WidgetPlayer::Leave(int status) {
  std::cout.flush();
  std::_Exit(status);
}

}  // namespace tessel::drive
