// Whether the widgets are as the models say.
#pragma once

#include <vector>

#include "drive/qt/Comparison.h"
#include "qt/TesselWidget.h"

namespace tessel::drive {

/// Compares every control with its widget: whether it is to be seen and used, where it stands (the
/// models have no place for what stands on a page or a form: their layout has), and what it shows.
/// Editors and forms out of sight are left out. Everything pending must have happened. Changes
/// nothing.
std::vector<Difference> CompareWidgets(const TesselWidget& widget);

}  // namespace tessel::drive
