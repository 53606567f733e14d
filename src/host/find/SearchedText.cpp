#include "host/find/SearchedText.h"

#include <algorithm>

#include "qt/base/QtText.h"

namespace tessel {
namespace {

constexpr std::size_t kPiece = 256UL * 1024;

}  // namespace

bool SearchedText::TranslateSome() {
  const auto done = static_cast<std::size_t>(unicode_.size());
  if (done == 0) unicode_.reserve(Length());
  if (done < bytes_.size()) unicode_ += ShownText(bytes_.substr(done, kPiece));
  return unicode_.size() == Length();
}

const QString& SearchedText::Unicode() {
  while (!TranslateSome()) continue;
  return unicode_;
}

}  // namespace tessel
