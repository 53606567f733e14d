#include "qt/base/RoomForTitle.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <algorithm>

namespace tessel {
namespace {

constexpr int kNarrowestBox = 320;
// A window manager's own: the icon, the buttons, bold letters.
constexpr int kBesideTitle = 120;
constexpr double kBoldLetters = 1.15;

/// The toolkit puts the program's name behind a title.
QString WholeTitle(const QMessageBox& box) {
  const QString program = QGuiApplication::applicationDisplayName();
  return box.windowTitle() == program ? program : box.windowTitle() + " \u2014 " + program;
}

}  // namespace

// The box computes its own size, from its layout.
void KeepRoomForTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  const int title = box.fontMetrics().horizontalAdvance(WholeTitle(box));
  const int width = std::max(kNarrowestBox, qRound(title * kBoldLetters) + kBesideTitle);
  const QMargins margins = box.contentsMargins() + grid->contentsMargins();
  auto* room = new QSpacerItem(width - margins.left() - margins.right(), 0);
  grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
}

}  // namespace tessel
