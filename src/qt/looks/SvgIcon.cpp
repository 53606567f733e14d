#include "qt/looks/SvgIcon.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QSvgRenderer>

#include "qt/looks/Theme.h"

// Outside of the namespace, as the macro asks: a static library's resources are only there when
// something names them.
static void LoadIcons() { Q_INIT_RESOURCE(icons); }

namespace tessel {
namespace {

class SvgIconEngine : public QIconEngine {
 public:
  explicit SvgIconEngine(const QByteArray& drawing) : drawing_(drawing) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const Theme theme(QApplication::palette());
    QByteArray coloured = drawing_;
    coloured.replace("#404040", theme.IconInk().name().toLatin1());
    coloured.replace("#0060c0", theme.Accent().name().toLatin1());
    painter->save();
    if (mode == QIcon::Disabled) painter->setOpacity(0.35);
    QSvgRenderer(coloured).render(painter, rect);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect({0, 0}, size), mode, state);
    return pixmap;
  }

  QIconEngine* clone() const override { return new SvgIconEngine(*this); }

 private:
  QByteArray drawing_;
};

}  // namespace

QIcon SvgIcon(const QString& name) {
  LoadIcons();
  QFile file(":/tessel/icons/" + name + ".svg");
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QIcon(new SvgIconEngine(file.readAll()));
}

}  // namespace tessel
