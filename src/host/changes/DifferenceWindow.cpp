#include "host/changes/DifferenceWindow.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLocale>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "host/changes/Background.h"
#include "qt/base/RoomForTitle.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr QSize kUsualSize(860, 600);

QLabel* PlainLabel(QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

DifferenceWindow::DifferenceWindow(QWidget* parent)
    : QDialog(parent),
      documents_(new QComboBox(this)),
      nameBefore_(PlainLabel(this)),
      nameAfter_(PlainLabel(this)),
      remark_(PlainLabel(this)),
      view_(new DifferenceView(this)),
      place_(new QLabel(this)) {
  setWindowTitle(tr("Differences"));
  setAttribute(Qt::WA_DeleteOnClose);
  setModal(false);
  documents_->setAccessibleName(tr("Document"));
  remark_->setObjectName("remark");
  place_->setObjectName("place");
  previous_ = AddStep(tr("&Previous"), {Qt::SHIFT | Qt::Key_F8, Qt::ALT | Qt::Key_Up}, false);
  next_ = AddStep(tr("&Next"), {Qt::Key_F8, Qt::ALT | Qt::Key_Down}, true);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  buttons->button(QDialogButtonBox::Close)->setAutoDefault(false);

  auto* row = new QHBoxLayout;
  row->addWidget(place_);
  row->addStretch(1);
  row->addWidget(previous_);
  row->addWidget(next_);
  row->addWidget(buttons);
  auto* column = new QVBoxLayout(this);
  column->addWidget(documents_);
  column->addWidget(nameBefore_);
  column->addWidget(nameAfter_);
  column->addWidget(remark_);
  column->addWidget(view_, 1);
  column->addLayout(row);
  resize(OnScreen(*this, kUsualSize));
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(documents_, &QComboBox::currentIndexChanged, this, &DifferenceWindow::Compare);
  connect(view_, &DifferenceView::currentMoved, this, &DifferenceWindow::ShowState);
  view_->setFocus();
}

QPushButton* DifferenceWindow::AddStep(const QString& caption, const QList<QKeySequence>& keys,
                                       bool forward) {
  auto* button = new QPushButton(caption, this);
  button->setAutoDefault(false);
  button->setToolTip(
      QKeySequence::listToString(keys, QKeySequence::NativeText).replace("; ", ", "));
  auto* action = new QAction(this);
  action->setShortcuts(keys);
  addAction(action);
  connect(action, &QAction::triggered, this, [this, forward] { Step(forward); });
  connect(button, &QPushButton::clicked, this, [this, forward] { Step(forward); });
  return button;
}

void DifferenceWindow::LookAs(const ScintillaView& editor) {
  view_->setFont(editor.font());
  tabWidth_ = std::max(1, static_cast<int>(editor.SendScintilla(Sci::SCI_GETTABWIDTH)));
}

void DifferenceWindow::Show(std::vector<Comparison> comparisons) {
  comparisons_ = std::move(comparisons);
  {
    const QSignalBlocker quietly(documents_);
    documents_->clear();
    for (const Comparison& each : comparisons_) documents_->addItem(each.document);
  }
  documents_->setVisible(comparisons_.size() > 1);
  Compare();
  show();
  raise();
  activateWindow();
}

void DifferenceWindow::Compare() {
  const Comparison& chosen = comparisons_[static_cast<std::size_t>(documents_->currentIndex())];
  nameBefore_->setText(QStringLiteral("\u2212  ") + chosen.nameBefore);
  nameAfter_->setText(QStringLiteral("+  ") + chosen.nameAfter);
  view_->SetDifference(nullptr, tabWidth_);
  ShowState();
  InBackground(
      *this,
      [before = chosen.before, after = chosen.after]() mutable {
        return std::shared_ptr<const LineDifference>(
            std::make_shared<LineDifference>(std::move(before), std::move(after)));
      },
      [this, number = ++asked_](std::shared_ptr<const LineDifference> difference) {
        if (number == asked_) TakeOver(std::move(difference));
      });
}

void DifferenceWindow::TakeOver(std::shared_ptr<const LineDifference> difference) {
  view_->SetDifference(std::move(difference), tabWidth_);
  view_->GoTo(1);
  ShowState();
}

void DifferenceWindow::Step(bool forward) {
  const std::size_t current = view_->CurrentChange();
  if (forward) return view_->GoTo(current + 1);
  // From behind a change to its start first.
  view_->GoTo(view_->AtStartOfChange() ? current - 1 : current);
}

void DifferenceWindow::ShowState() {
  const LineDifference* difference = view_->Difference();
  const std::size_t all = difference == nullptr ? 0 : difference->Changes().size();
  const std::size_t current = view_->CurrentChange();
  const auto shown = [](std::size_t number) { return QLocale().toString(qulonglong{number}); };
  if (difference == nullptr) {
    place_->setText(tr("Comparing..."));
  } else {
    place_->setText(all == 0 ? tr("No difference")
                             : tr("%1 of %2").arg(shown(current), shown(all)));
  }
  const bool coarse = difference != nullptr && !difference->Fewest();
  if (coarse) {
    remark_->setText(tr("The texts differ in so much that this is a rough comparison."));
  }
  remark_->setVisible(coarse);
  previous_->setEnabled(current > 1 || (current == 1 && !view_->AtStartOfChange()));
  next_->setEnabled(current < all);
}

void ShowDifferences(QWidget& parent, const ScintillaView* editor,
                     std::vector<Comparison> comparisons) {
  auto* window = parent.findChild<DifferenceWindow*>({}, Qt::FindDirectChildrenOnly);
  if (window == nullptr) window = new DifferenceWindow(&parent);
  if (editor != nullptr) window->LookAs(*editor);
  window->Show(std::move(comparisons));
}

}  // namespace tessel
