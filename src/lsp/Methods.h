// The requests and notifications that the server knows, by their names.
#pragma once

#include <string_view>

#include "lsp/features/Features.h"

namespace tessel::lsp {

/// Null for a method that is unknown.
RequestHandler AnswerTo(std::string_view method);
NotificationHandler TakerOf(std::string_view method);

}  // namespace tessel::lsp
