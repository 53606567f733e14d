// The desktop's file dialogs.
#pragma once

#include <QString>
#include <QStringList>
#include <string_view>

#include "services/Services.h"

namespace tessel {

/// "description|pattern|description|pattern" as Qt's name filters. A pattern is offered in lower
/// and upper case, since some desktops tell them apart.
QStringList NameFilters(std::string_view filter);

class QtFileDialogs : public FileDialogs {
 public:
  std::optional<std::vector<std::string>> Show(const FileDialogRequest& request) override;
};

}  // namespace tessel
