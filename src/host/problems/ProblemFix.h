// What a click on a fix does.
#pragma once

#include <QString>

#include "host/problems/ProblemList.h"
#include "qt/TesselWidget.h"

namespace tessel {

/// Applies a problem's fix as a person's edit: one step of undo, in its document, which comes to
/// the front with the caret there. Returns why not, as a sentence for the status bar; else nothing.
QString ApplyFix(TesselWidget& control, const ProblemList& problems, const Problem& problem);

}  // namespace tessel
