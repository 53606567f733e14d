#include "lsp/documents/Document.h"

#include <algorithm>
#include <utility>

#include "text/Text.h"
#include "text/Utf8.h"

namespace tessel::lsp {
namespace {

std::uint64_t NextRevision() {
  static std::uint64_t last = 0;
  return ++last;
}

}  // namespace

Document::Document(std::string uri, ClientText text, std::optional<std::int64_t> version)
    : uri_(std::move(uri)),
      isOpen_(true),
      version_(version),
      revision_(NextRevision()),
      bytes_(std::move(text.bytes)),
      foreigners_(std::move(text.foreigners)),
      script_(bytes_),
      lines_(bytes_) {}

Document::Document(std::string uri, std::string bytes)
    : uri_(std::move(uri)),
      isOpen_(false),
      revision_(NextRevision()),
      bytes_(std::move(bytes)),
      script_(bytes_),
      lines_(bytes_) {}

const LiveColours& Document::Colours() const {
  if (!colours_) colours_.emplace(bytes_);
  return *colours_;
}

void Document::Replace(language::Range range, const ClientText& text) {
  const Position inserted = std::ssize(text.bytes);
  bytes_.replace(static_cast<std::size_t>(range.begin), static_cast<std::size_t>(range.Length()),
                 text.bytes);
  const auto first = std::ranges::lower_bound(foreigners_, range.begin, {}, &Foreigner::at);
  const auto last = std::ranges::lower_bound(foreigners_, range.end, {}, &Foreigner::at);
  for (auto each = last; each != foreigners_.end(); ++each) each->at += inserted - range.Length();
  auto at = foreigners_.erase(first, last);
  for (Foreigner each : text.foreigners) {
    each.at += range.begin;
    at = foreigners_.insert(at, each) + 1;
  }
  script_.Update(bytes_, range.begin, range.Length(), inserted);
  lines_.Update(bytes_, range.begin, range.Length(), inserted);
  if (colours_) colours_->Update(bytes_, range.begin, range.Length(), inserted);
  revision_ = NextRevision();
}

void Document::ReplaceAll(ClientText text) {
  bytes_ = std::move(text.bytes);
  foreigners_ = std::move(text.foreigners);
  script_ = language::Script(bytes_);
  lines_ = LineIndex(bytes_);
  colours_.reset();
  revision_ = NextRevision();
}

std::span<const Foreigner> Document::ForeignersIn(language::Range range) const {
  const auto first = std::ranges::lower_bound(foreigners_, range.begin, {}, &Foreigner::at);
  const auto last =
      std::ranges::lower_bound(first, foreigners_.end(), range.end, {}, &Foreigner::at);
  return {first, last};
}

std::string Document::Utf8(language::Range range) const {
  const std::string_view bytes = language::Slice(bytes_, range);
  const auto isAscii = [](char byte) { return static_cast<unsigned char>(byte) < 0x80; };
  if (std::ranges::all_of(bytes, isAscii)) return std::string(bytes);
  std::string utf8;
  utf8.reserve(bytes.size());
  auto foreigners = ForeignersIn(range);
  for (Position at = range.begin; at < range.end; ++at) {
    if (!foreigners.empty() && foreigners.front().at == at) {
      AppendUtf8(utf8, foreigners.front().character);
      foreigners = foreigners.subspan(1);
    } else {
      AppendUtf8(utf8,
                 CodePointOfByte(static_cast<unsigned char>(bytes_[static_cast<std::size_t>(at)])));
    }
  }
  return utf8;
}

}  // namespace tessel::lsp
