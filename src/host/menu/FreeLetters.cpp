#include "host/menu/FreeLetters.h"

#include <QAbstractButton>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <algorithm>

#include "qt/base/Mnemonics.h"

namespace tessel {
namespace {

/// Empty where the part has none that a key could be marked in.
QString CaptionOf(const QWidget& part) {
  if (const auto* button = qobject_cast<const QAbstractButton*>(&part)) return button->text();
  if (const auto* group = qobject_cast<const QGroupBox*>(&part)) return group->title();
  const auto* label = qobject_cast<const QLabel*>(&part);
  return label == nullptr || label->buddy() == nullptr ? QString() : label->text();
}

void SetCaption(QWidget& part, const QString& caption) {
  if (auto* button = qobject_cast<QAbstractButton*>(&part)) return button->setText(caption);
  if (auto* group = qobject_cast<QGroupBox*>(&part)) return group->setTitle(caption);
  if (auto* label = qobject_cast<QLabel*>(&part)) label->setText(caption);
}

/// Marks the first letter that is free.
QString Lettered(const QString& plain, const QSet<QChar>& taken) {
  for (const QChar letter : plain) {
    if (letter.isLetter() && !taken.contains(letter.toLower())) return WithMnemonic(plain, letter);
  }
  return plain;
}

}  // namespace

FreeLetters::FreeLetters(QWidget& control) : QObject(&control), control_(control) {
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &FreeLetters::Assign);
  for (QObject* part : control_.children()) part->installEventFilter(this);
}

void FreeLetters::AddBar(QWidget& bar) {
  bars_ += &bar;
  bar.installEventFilter(this);
  soon_.start();
}

// The pages of the panel come and go, and so do the bars and their rows.
bool FreeLetters::eventFilter(QObject*, QEvent* event) {
  const bool isChange = event->type() == QEvent::Show || event->type() == QEvent::Hide ||
                        event->type() == QEvent::LayoutRequest;
  if (isChange) soon_.start();
  return false;
}

bool FreeLetters::IsInBar(const QWidget& part) const {
  return std::ranges::any_of(bars_,
                             [&](const auto& bar) { return bar && bar->isAncestorOf(&part); });
}

QList<QWidget*> FreeLetters::BarsInSight() const {
  QList<QWidget*> bars;
  for (QWidget* bar : bars_) {
    if (bar != nullptr && bar->isVisible()) bars += bar;
  }
  std::ranges::stable_sort(bars, {},
                           [](const QWidget* bar) { return bar->mapToGlobal(QPoint()).y(); });
  return bars;
}

QSet<QChar> FreeLetters::LettersOfOthers() const {
  const QWidget* window = control_.window();
  QSet<QChar> letters;
  for (const QWidget* part : window->findChildren<QWidget*>()) {
    if (part->window() != window || !part->isVisible() || IsInBar(*part)) continue;
    letters += MnemonicOf(CaptionOf(*part));
    const auto* menus = qobject_cast<const QMenuBar*>(part);
    if (menus == nullptr) continue;
    for (const QAction* title : menus->actions()) letters += MnemonicOf(title->text());
  }
  return letters;
}

QString FreeLetters::MadeAs(QWidget& part) {
  Caption& caption = captions_[&part];
  const QString now = CaptionOf(part);
  if (now != caption.shown) caption = {now, now};
  return caption.made;
}

void FreeLetters::Assign() {
  QSet<QChar> taken = LettersOfOthers();
  QList<QWidget*> others;
  for (QWidget* part : PartsInSight()) {
    const QString made = MadeAs(*part);
    const QChar letter = MnemonicOf(made);
    if (letter.isNull() || taken.contains(letter)) {
      others += part;
    } else {
      Show(*part, made);
      taken += letter;
    }
  }
  for (QWidget* part : others) {
    Show(*part, Lettered(PlainCaption(MadeAs(*part)), taken));
    taken += MnemonicOf(captions_[part].shown);
  }
}

void FreeLetters::Show(QWidget& part, const QString& caption) {
  captions_[&part].shown = caption;
  SetCaption(part, caption);
}

QList<QWidget*> FreeLetters::PartsInSight() const {
  QList<QWidget*> parts;
  for (const QWidget* bar : BarsInSight()) {
    for (QWidget* part : bar->findChildren<QWidget*>()) {
      if (part->isVisible() && !CaptionOf(*part).isEmpty()) parts += part;
    }
  }
  return parts;
}

}  // namespace tessel
