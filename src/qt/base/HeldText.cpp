#include "qt/base/HeldText.h"

#include <QGuiApplication>
#include <utility>

#include "qt/base/SelectionOwner.h"

namespace tessel {
namespace {

QString RefusalFor(QClipboard::Mode mode, OwnerAnswer answer) {
  const QString which =
      mode == QClipboard::Selection ? QStringLiteral("selection") : QStringLiteral("clipboard");
  const QString form =
      answer == OwnerAnswer::kTooLarge
          ? QStringLiteral("The %1 holds more than 512 MiB. Nothing was pasted.")
          : QStringLiteral("The program that has the %1 does not answer. Nothing was pasted.");
  return form.arg(which);
}

}  // namespace

HeldText ReadHeldText(QClipboard::Mode mode) {
  OwnersData owners = ReadFromOwner(mode);
  HeldText held;
  switch (owners.answer) {
    case OwnerAnswer::kNotAsked:
      held.data = QGuiApplication::clipboard()->mimeData(mode);
      break;
    case OwnerAnswer::kGiven:
      held.read = std::move(owners.data);
      held.data = held.read.get();
      break;
    case OwnerAnswer::kNone:
    case OwnerAnswer::kTooLarge:
      held.refusal = RefusalFor(mode, owners.answer);
      break;
  }
  return held;
}

}  // namespace tessel
