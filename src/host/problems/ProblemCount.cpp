#include "host/problems/ProblemCount.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <algorithm>

#include "host/problems/ProblemModel.h"
#include "qt/base/Mnemonics.h"

namespace tessel {
namespace {

/// So many pixels wide the bar has room for words.
constexpr int kRoomForWords = 800;
constexpr int kIcon = 14;

}  // namespace

ProblemCount::ProblemCount(QStatusBar& bar)
    : QWidget(&bar), bar_(bar), icon_(new QLabel(this)), button_(new QToolButton(this)) {
  button_->setAutoRaise(true);
  button_->setFocusPolicy(Qt::TabFocus);
  button_->setToolButtonStyle(Qt::ToolButtonTextOnly);
  button_->setToolTip(tr("Shows the problems"));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(2);
  row->addWidget(icon_);
  row->addWidget(button_);
  setMaximumHeight(fontMetrics().height());  // the bar stays as low as its labels are
  bar.addPermanentWidget(this);
  connect(button_, &QToolButton::clicked, this, &ProblemCount::clicked);
  bar.installEventFilter(this);
  hide();
}

void ProblemCount::Show(const ProblemList& problems) {
  const auto count = std::ssize(problems.All());
  setVisible(count > 0);
  if (count == 0) return;
  const auto worst = std::ranges::max_element(problems.All(), {}, &Problem::Severity)->Severity();
  icon_->setPixmap(IconOf(worst).pixmap(QSize(kIcon, kIcon), devicePixelRatioF()));
  number_ = QLocale().toString(count);
  text_ = problems.IsComplete() ? tr("%Ln &problem(s)", nullptr, static_cast<int>(count))
                                : tr("More than %L1 &problems").arg(count);
  button_->setAccessibleName(PlainCaption(text_));
  FitText();
}

void ProblemCount::FitText() { button_->setText(bar_.width() < kRoomForWords ? number_ : text_); }

bool ProblemCount::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Resize) FitText();
  return false;
}

}  // namespace tessel
