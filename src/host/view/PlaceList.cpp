#include "host/view/PlaceList.h"

#include <QByteArray>
#include <algorithm>
#include <sstream>

namespace tessel {

// A path may hold any byte but NUL; encoded it is one word.
PlaceList::PlaceList(const std::string& stored) {
  std::istringstream lines(stored);
  std::string encoded;
  DocumentPlace place;
  while (rows_.size() < kMost && lines >> place.caret >> place.length >> place.topLine >> encoded) {
    rows_.push_back({QByteArray::fromPercentEncoding(encoded.c_str()).toStdString(), place});
  }
}

std::string PlaceList::Stored() const {
  std::ostringstream lines;
  for (const auto& [path, place] : rows_) {
    lines << place.caret << ' ' << place.length << ' ' << place.topLine << ' '
          << QByteArray::fromStdString(path).toPercentEncoding("/").toStdString() << '\n';
  }
  return lines.str();
}

std::optional<DocumentPlace> PlaceList::Of(const std::string& path) const {
  const auto it = std::ranges::find(rows_, path, &Row::path);
  return it == rows_.end() ? std::nullopt : std::optional(it->place);
}

void PlaceList::Put(const std::string& path, const DocumentPlace& place) {
  std::erase_if(rows_, [&](const Row& row) { return row.path == path; });
  rows_.insert(rows_.begin(), {path, place});
  if (rows_.size() > kMost) rows_.pop_back();
}

}  // namespace tessel
