// New values for what a document defines, and the document converted.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "lsp/features/Edits.h"

namespace tessel::lsp {

/// A value, in single-byte text, for the item of that name, looked at as "tessel set" does: in that
/// line (from 1) if one is given. A RuntimeError says why it cannot be set.
Edit SetValue(const Document& document, const std::string& item, const std::string& value,
              std::optional<std::int64_t> line);

/// A value that is offered for a define.
struct OfferedValue {
  std::string name;  ///< of the define, in UTF-8
  std::string value;
  std::string why;  ///< such as "as in the template"; may be empty
  Edit edit;
};
/// For the define in the line of a place: that of the template, the nearest that the panel's lists
/// have, and the other one of YES and NO.
std::vector<OfferedValue> ValuesFor(const Session& session, const Document& document,
                                    Position offset);

/// The edits that convert the document; a RuntimeError in the control's words. What is inserted
/// ends its lines as the document does.
std::vector<Edit> ConversionOf(const Document& document);

}  // namespace tessel::lsp
