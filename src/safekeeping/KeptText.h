// Texts as the program keeps them in files, with where they belong.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "safekeeping/PrivateFolder.h"

namespace tessel {

/// What a file says of the text that is kept in it.
struct KeptText {
  std::string path;       ///< of the document; empty: it had none, or that cannot be read any more
  long long seconds = 0;  ///< when it was kept, since 1970
  std::size_t size = 0;   ///< of the text, in bytes
  bool damaged = false;   ///< the file is not as it was written
  /// The hash of the file's bytes that the text began from, where that is known.
  std::optional<std::uint64_t> base = {};
};

struct KeptBytes : KeptText {
  std::string bytes;  ///< of a damaged file those that are left
};

/// Puts the text in the file, in place of what that held. The text's size is that of the bytes.
void WriteKeptText(const PrivateFolder& folder, const std::string& name, const KeptText& text,
                   std::string_view bytes);
/// What the file says of its text, from its first lines and its size alone; nothing when no regular
/// file has that name, when it is empty, or when it cannot be read.
std::optional<KeptText> DescribeKeptText(const PrivateFolder& folder, const std::string& name);
/// The text itself. A file that cannot be read is a FileProblem; a damaged one is not.
KeptBytes ReadKeptText(const PrivateFolder& folder, const std::string& name);

}  // namespace tessel
