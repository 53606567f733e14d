#include "qt/base/RoomForTitle.h"

#include <QGridLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace tessel {
namespace {

constexpr int kNarrowestBox = 320;
// A window manager's own: the icon, the buttons, bold letters.
constexpr int kBesideTitle = 120;
constexpr double kBoldLetters = 1.15;
constexpr QSize kFrame{8, 40};

/// The toolkit puts the program's name behind a title.
QString WholeTitle(const QDialog& dialog) {
  const QString program = QGuiApplication::applicationDisplayName();
  return dialog.windowTitle() == program ? program : dialog.windowTitle() + " \u2014 " + program;
}

int WidthForTitle(const QDialog& dialog) {
  const int title = dialog.fontMetrics().horizontalAdvance(WholeTitle(dialog));
  return std::max(kNarrowestBox, qRound(title * kBoldLetters) + kBesideTitle);
}

}  // namespace

// The box computes its own size, from its layout.
void KeepRoomForTitle(QMessageBox& box) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  const int width = WidthForTitle(box);
  const QMargins margins = box.contentsMargins() + grid->contentsMargins();
  auto* room = new QSpacerItem(width - margins.left() - margins.right(), 0);
  grid->addItem(room, grid->rowCount(), 0, 1, grid->columnCount());
}

// Its layout sets the least size that the dialog has.
void KeepRoomForTitle(QInputDialog& dialog) {
  dialog.sizeHint();  // makes the layout
  auto* column = qobject_cast<QVBoxLayout*>(dialog.layout());
  if (column == nullptr) return;
  const QMargins margins = column->contentsMargins();
  column->addItem(new QSpacerItem(WidthForTitle(dialog) - margins.left() - margins.right(), 0));
}

QSize OnScreen(const QWidget& window, QSize wanted) {
  return wanted.boundedTo(window.screen()->availableSize() - kFrame);
}

}  // namespace tessel
