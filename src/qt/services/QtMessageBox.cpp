#include "qt/services/QtMessageBox.h"

#include <QCoreApplication>
#include <QMessageBox>

#include "qt/base/QtText.h"
#include "qt/base/RoomForTitle.h"
#include "qt/services/DialogOwner.h"

namespace tessel {
namespace {

QMessageBox::Icon IconOf(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::kInformation:
      return QMessageBox::Information;
    case MessageIcon::kExclamation:
      return QMessageBox::Warning;
    case MessageIcon::kQuestion:
      return QMessageBox::Question;
    case MessageIcon::kNone:
      break;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
  switch (buttons) {
    case MessageButtons::kYesNo:
    case MessageButtons::kNoYes:
      return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::kYesNoCancel:
      return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::kOk:
      break;
  }
  return QMessageBox::Ok;
}

MessageAnswer AnswerOf(int button) {
  switch (button) {
    case QMessageBox::Yes:
      return MessageAnswer::kYes;
    case QMessageBox::No:
      return MessageAnswer::kNo;
    case QMessageBox::Cancel:
      return MessageAnswer::kCancel;
    default:
      return MessageAnswer::kOk;
  }
}

}  // namespace

MessageAnswer QtMessageBox::Show(const std::string& text, MessageIcon icon,
                                 const std::string& title, MessageButtons buttons) {
  QMessageBox box(DialogOwner());
  box.setTextFormat(Qt::PlainText);
  box.setText(ShownName(text));
  box.setWindowTitle(ShownName(title));
  box.setIcon(IconOf(icon));
  box.setStandardButtons(ButtonsOf(buttons));
  if (buttons == MessageButtons::kNoYes) box.setDefaultButton(QMessageBox::No);
  KeepRoomForTitle(box);
  return AnswerOf(box.exec());
}

void TellWhenIdle(const std::string& problem) {
  const auto show = [problem] {
    QtMessageBox().Show(problem, MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
  };
  QMetaObject::invokeMethod(qApp, show, Qt::QueuedConnection);
}

}  // namespace tessel
