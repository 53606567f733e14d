// A quiet notice above the text.
#pragma once

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace tessel {

/// A bar with a sentence and with buttons for what can be done about it, on a ground of its own. It
/// is hidden at first, and takes no room then. The sentence is shown as it stands.
class NoticeBar : public QFrame {
  Q_OBJECT

 public:
  /// `name` is for assistive technology.
  NoticeBar(const QString& name, QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void SetText(const QString& sentence) { text_->setText(sentence); }
  template <class Bar>
  QPushButton* AddButton(const QString& caption, void (Bar::*action)()) {
    auto* button = new QPushButton(caption, this);
    connect(button, &QPushButton::clicked, static_cast<Bar*>(this), action);
    row_->addWidget(button);
    return button;
  }

 private:
  QLabel* text_;
  QHBoxLayout* row_;
};

}  // namespace tessel
