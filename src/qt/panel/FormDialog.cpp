#include "qt/panel/FormDialog.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QScreen>

#include "qt/base/QtText.h"
#include "qt/views/ButtonViews.h"

namespace tessel {

FormDialog::FormDialog(Form& model, WidgetMap& widgets, QWidget* parent)
    : QDialog(parent), model_(model), widgets_(widgets) {
  setObjectName(QString::fromStdString(model_.Name()));
  setWindowModality(Qt::ApplicationModal);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  setSizeGripEnabled(false);
  setWindowTitle(ShownText(model_.Caption()));
  refresh_ = model_.Refresh.Connect([this] { Draw(); });
}

QWidget* FormDialog::MakeButton(CommandButton& button, const QString& accessibleName,
                                QChar mnemonic) {
  auto* view = Make<CommandButtonView>(button, accessibleName);
  view->SetMnemonic(mnemonic);
  view->setDefault(&button == model_.DefaultButton());
  return view;
}

void FormDialog::Draw() {
  setWindowTitle(ShownText(model_.Caption()));
  if (model_.Visible() && isHidden()) Open();
  if (!model_.Visible() && !isHidden()) hide();
}

void FormDialog::Open() {
  adjustSize();
  QRect place({0, 0}, size());
  place.moveCenter(parentWidget()->screen()->availableGeometry().center());
  move(place.topLeft());
  show();
  activateWindow();
  QWidget* first = FirstWidget();
  if (first == nullptr) return;
  first->setFocus(Qt::OtherFocusReason);
  if (const auto* combo = qobject_cast<QComboBox*>(first)) combo->lineEdit()->selectAll();
}

void FormDialog::reject() {
  if (CommandButton* cancel = model_.CancelButton()) {
    cancel->Press();
  } else {
    model_.Hide();
  }
}

void FormDialog::closeEvent(QCloseEvent* event) {
  reject();
  event->setAccepted(!model_.Visible());
}

}  // namespace tessel
