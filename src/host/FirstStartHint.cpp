#include "host/FirstStartHint.h"

namespace tessel {

FirstStartHint::FirstStartHint(TesselWidget& control, QWidget* parent)
    : NoticeBar(tr("What to do first"), parent) {
  SetText(tr(
      "Open a CON file (Ctrl+O), or make one with File > New. The pages above the text change its "
      "values. Text that is not saved is kept, and offered again after a crash."));
  AddButton(tr("&Manual (F1)"), &FirstStartHint::manualWanted);
  AddButton(tr("&Close Hint"), &FirstStartHint::deleteLater);
  loaded_ =
      control.Tessel().OpenDocuments().Loaded.Connect([this](const Document&) { deleteLater(); });
  show();
}

}  // namespace tessel
