// File names as URIs.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessel::lsp {

/// The path of a "file" URI of this machine; nothing for any other.
std::optional<std::string> PathOfUri(std::string_view uri);
/// The URI of an absolute path.
std::string UriOfPath(std::string_view path);

/// What two URIs of the same document have in common, however they are written.
std::string KeyOfUri(std::string_view uri);

}  // namespace tessel::lsp
