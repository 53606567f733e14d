#include "host/NoticeBar.h"

namespace tessel {

NoticeBar::NoticeBar(const QString& name, QWidget* parent)
    : QFrame(parent), text_(new QLabel(this)), row_(new QHBoxLayout(this)) {
  setFrameShape(QFrame::StyledPanel);
  setAccessibleName(name);
  setBackgroundRole(QPalette::ToolTipBase);
  setForegroundRole(QPalette::ToolTipText);
  setAutoFillBackground(true);
  text_->setForegroundRole(QPalette::ToolTipText);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  row_->setContentsMargins(8, 4, 8, 4);
  row_->addWidget(text_, 1);
  hide();
}

}  // namespace tessel
