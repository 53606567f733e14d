#include "qt/panel/Forms.h"

#include "qt/panel/AddParamDialog.h"
#include "qt/panel/FindDialog.h"
#include "qt/panel/RandDialog.h"

namespace tessel {

FormDialog* MakeFormDialog(Form& form, WidgetMap& widgets, QWidget* parent) {
  if (auto* find = dynamic_cast<frmFind*>(&form)) return new FindDialog(*find, widgets, parent);
  if (auto* rand = dynamic_cast<frmRand*>(&form)) return new RandDialog(*rand, widgets, parent);
  if (auto* words = dynamic_cast<frmAddParam*>(&form)) {
    return new AddParamDialog(*words, widgets, parent);
  }
  return new FormDialog(form, widgets, parent);
}

}  // namespace tessel
