#include "posix/FileAttributes.h"

#include <sys/xattr.h>

#include <cerrno>
#include <optional>
#include <string_view>

namespace tessel::posix {
namespace {

// The name under which Linux keeps the list; see acl(5) and xattr(7).
constexpr const char* kAccessControlList = "system.posix_acl_access";

/// What the system hands out once it has room enough; `call` takes the room and its size.
template <class Call>
std::optional<std::string> InRoomEnough(Call call) {
  std::string value;
  for (;;) {
    const ssize_t size = call(nullptr, std::size_t{0});
    if (size == -1) return std::nullopt;
    if (size == 0) return "";
    value.resize(static_cast<std::size_t>(size));
    const ssize_t got = call(value.data(), value.size());
    if (got != -1) {
      value.resize(static_cast<std::size_t>(got));
      return value;
    }
    if (errno != ERANGE) return std::nullopt;  // else it has grown meanwhile
  }
}

bool IsCopied(std::string_view name) {
  return name.starts_with("user.") || name == kAccessControlList;
}

}  // namespace

void CopyAttributes(const std::string& from, int to) {
  // The directory may have given the new file a list.
  ::fremovexattr(to, kAccessControlList);
  std::string names = InRoomEnough([&](char* room, std::size_t size) {
                        return ::listxattr(from.c_str(), room, size);
                      }).value_or("");
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* const name = names.data() + at;
    if (!IsCopied(name)) continue;
    const auto value = InRoomEnough(
        [&](char* room, std::size_t size) { return ::getxattr(from.c_str(), name, room, size); });
    if (value) ::fsetxattr(to, name, value->data(), value->size(), 0);
  }
}

}  // namespace tessel::posix
