#include "cli/report/Complaint.h"

#include <iostream>

#include "text/SafeText.h"

namespace tessel::cli {

void Complain(const std::string& text) { std::cerr << "tessel: " << ForTerminal(text) << '\n'; }

}  // namespace tessel::cli
