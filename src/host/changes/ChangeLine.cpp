#include "host/changes/ChangeLine.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>

#include "qt/base/QtText.h"

namespace tessel {

ChangeLine::ChangeLine(QWidget* parent) : QWidget(parent), text_(new QLabel(this)) {
  setAccessibleName(tr("What has changed"));
  text_->setTextFormat(Qt::PlainText);
  // It takes the room that is there, and says less where that is little.
  text_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(4, 0, 0, 0);
  row->setSpacing(4);
  row->addWidget(text_, 1);
  show_ = AddLink(tr("Show"), &ChangeLine::showWanted);
  undo_ = AddLink(tr("Undo"), &ChangeLine::undoWanted);
  hide();
}

QToolButton* ChangeLine::AddLink(const QString& caption, void (ChangeLine::*wanted)()) {
  auto* link = new QToolButton(this);
  link->setText(caption);
  link->setToolButtonStyle(Qt::ToolButtonTextOnly);
  link->setAutoRaise(true);
  link->setFocusPolicy(Qt::TabFocus);
  link->setForegroundRole(QPalette::Link);
  QFont underlined = link->font();
  underlined.setUnderline(true);
  link->setFont(underlined);
  connect(link, &QToolButton::clicked, this, wanted);
  layout()->addWidget(link);
  return link;
}

void ChangeLine::Say(const QString& sentence, bool canShow, bool canUndo) {
  sentence_ = sentence;
  text_->setAccessibleName(sentence);
  setToolTip(PlainToolTip(sentence));
  show_->setVisible(canShow);
  show_->setAccessibleName(tr("Show changes: %1").arg(sentence));
  undo_->setVisible(canUndo);
  undo_->setAccessibleName(tr("Undo: %1").arg(sentence));
  show();
  FitText();
  QAccessibleEvent told(text_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

void ChangeLine::Clear() {
  sentence_.clear();
  hide();
}

void ChangeLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitText();
}

bool ChangeLine::event(QEvent* event) {
  const bool done = QWidget::event(event);
  if (event->type() == QEvent::LayoutRequest) FitText();
  return done;
}

void ChangeLine::FitText() {
  text_->setText(text_->fontMetrics().elidedText(sentence_, Qt::ElideRight, text_->width()));
}

}  // namespace tessel
