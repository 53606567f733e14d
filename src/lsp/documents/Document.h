// A text that the server knows, and its readings, which are kept up while it is edited.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "colouring/LiveColours.h"
#include "language/Script.h"
#include "lsp/documents/ClientText.h"
#include "lsp/documents/LineIndex.h"

namespace tessel::lsp {

class Document {
 public:
  /// One that the client has open, with the version that it gives.
  Document(std::string uri, ClientText text, std::optional<std::int64_t> version);
  /// One on the disk.
  Document(std::string uri, std::string bytes);
  Document(const Document&) = delete;
  Document& operator=(const Document&) = delete;

  const std::string& Uri() const { return uri_; }
  /// Whether the client has it open: then its text is the client's.
  bool IsOpen() const { return isOpen_; }
  std::optional<std::int64_t> Version() const { return version_; }
  void SetVersion(std::optional<std::int64_t> version) { version_ = version; }
  /// Another one for each text, in all documents.
  std::uint64_t Revision() const { return revision_; }

  const std::string& Bytes() const { return bytes_; }
  const language::Script& Script() const { return script_; }
  const LineIndex& Lines() const { return lines_; }
  /// Made when somebody asks, and then kept up.
  const LiveColours& Colours() const;

  void Replace(language::Range range, const ClientText& text);
  void ReplaceAll(ClientText text);

  /// The characters in a range that a CON file cannot hold.
  std::span<const Foreigner> ForeignersIn(language::Range range) const;
  std::span<const Foreigner> Foreigners() const { return foreigners_; }
  /// What the client sees there.
  std::string Utf8(language::Range range) const;

 private:
  std::string uri_;
  bool isOpen_;
  std::optional<std::int64_t> version_;
  std::uint64_t revision_;
  std::string bytes_;
  std::vector<Foreigner> foreigners_;
  language::Script script_;
  LineIndex lines_;
  mutable std::optional<LiveColours> colours_;
};

}  // namespace tessel::lsp
