#include "host/second/SecondPane.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "qt/base/QtText.h"
#include "qt/looks/SvgIcon.h"

namespace tessel {

SecondPane::SecondPane(std::function<bool()> busy, QWidget* parent)
    : QFrame(parent), text_(new SecondText(std::move(busy), this)), title_(new QLabel(this)) {
  setAccessibleName(tr("Second view"));
  title_->setTextFormat(Qt::PlainText);
  title_->setObjectName("secondTitle");
  title_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* close = new QToolButton(this);
  close->setAutoRaise(true);
  close->setIcon(SvgIcon("FindClose"));
  close->setFocusPolicy(Qt::TabFocus);
  close->setAccessibleName(tr("Close the second view"));
  close->setToolTip(tr("Close the second view"));
  connect(close, &QToolButton::clicked, this, &SecondPane::closeWanted);
  auto* header = new QHBoxLayout;
  header->setContentsMargins(6, 2, 2, 2);
  header->addWidget(title_, 1);
  header->addWidget(close);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addLayout(header);
  column->addWidget(text_, 1);
  text_->setMinimumSize(120, 60);
}

void SecondPane::SetTitle(const QString& name, const QString& tip) {
  name_ = name;
  title_->setToolTip(PlainToolTip(tip));
  ShowTitle();
}

void SecondPane::ShowTitle() {
  title_->setText(title_->fontMetrics().elidedText(name_, Qt::ElideMiddle, title_->width()));
}

void SecondPane::resizeEvent(QResizeEvent* event) {
  QFrame::resizeEvent(event);
  layout()->activate();
  ShowTitle();
}

}  // namespace tessel
