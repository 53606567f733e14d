#include "qt/looks/DotIcon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>

#include "qt/looks/Theme.h"

namespace tessel {
namespace {

class DotEngine : public QIconEngine {
 public:
  explicit DotEngine(bool modified) : modified_(modified) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    const bool dark = Theme(QApplication::palette()).Dark();
    const double diameter = std::min(rect.width(), rect.height()) - 1.5;
    QRectF dot(0, 0, diameter, diameter);
    dot.moveCenter(QRectF(rect).center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (modified_) {
      painter->setPen(QPen(dark ? QColor("#ff9d94") : QColor("#a11212"), 1));
      painter->setBrush(dark ? QColor("#ef4136") : QColor("#d32f2f"));
    } else {
      painter->setPen(QPen(dark ? QColor("#aab2bd") : QColor("#111418"), dark ? 1.2 : 1));
      painter->setBrush(dark ? QColor("#050607") : QColor("#1d2126"));
    }
    painter->drawEllipse(dot);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect({0, 0}, size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new DotEngine(*this); }

 private:
  bool modified_;
};

}  // namespace

QIcon DotIcon(bool modified) { return QIcon(new DotEngine(modified)); }

}  // namespace tessel
