// Where the user was in files that are not open any more.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "text/TextTypes.h"

namespace tessel {

/// Where somebody was in a text.
struct DocumentPlace {
  Position caret = 0;
  Position length = 0;  ///< of the text then, in bytes
  long topLine = 0;     ///< the line at the top of the view, from 0

  friend bool operator==(const DocumentPlace&, const DocumentPlace&) = default;
};

/// The places of the files that were left last, as one text for the settings.
class PlaceList {
 public:
  static constexpr std::size_t kMost = 50;

  /// Of what is no list it takes what it can.
  explicit PlaceList(const std::string& stored);
  std::string Stored() const;

  std::optional<DocumentPlace> Of(const std::string& path) const;
  /// The newest from now on; the oldest one goes where there are too many.
  void Put(const std::string& path, const DocumentPlace& place);

 private:
  struct Row {
    std::string path;
    DocumentPlace place;
  };

  std::vector<Row> rows_;  // the newest first
};

}  // namespace tessel
