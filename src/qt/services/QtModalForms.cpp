#include "qt/services/QtModalForms.h"

#include <QEventLoop>

#include "models/Form.h"

namespace tessel {

void QtModalForms::ShowModal(Form& form) {
  QEventLoop untilHidden;
  const Subscription hidden = form.Refresh.Connect([&] {
    if (!form.Visible()) untilHidden.quit();
  });
  form.Show();
  if (form.Visible()) untilHidden.exec();
}

}  // namespace tessel
