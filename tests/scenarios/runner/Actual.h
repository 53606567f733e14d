// What a reply says about what was expected of it.
#pragma once

#include "JsonText.h"

namespace scenario {

/// The members of `actual` that `expected` names; what matches stays as it is expected.
Json ActualOf(const Json& expected, const Json& actual);

}  // namespace scenario
