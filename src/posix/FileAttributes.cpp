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

bool IsOfUser(std::string_view name) { return name.starts_with("user."); }

std::optional<std::string> ValueOf(const std::string& file, const char* name) {
  return InRoomEnough(
      [&](char* room, std::size_t size) { return ::lgetxattr(file.c_str(), name, room, size); });
}

bool Set(int file, const char* name, const std::string& value) {
  return ::fsetxattr(file, name, value.data(), value.size(), 0) == 0;
}

/// Does the last call's error say that there is no such attribute?
bool HasNone() { return errno == ENODATA || errno == EOPNOTSUPP; }

bool CopyAccessControlList(const std::string& from, int to) {
  const auto list = ValueOf(from, kAccessControlList);
  if (list) return Set(to, kAccessControlList, *list);
  // The directory may have given the new file a list.
  return HasNone() && (::fremovexattr(to, kAccessControlList) == 0 || HasNone());
}

}  // namespace

bool CopyAttributes(const std::string& from, int to) {
  if (!CopyAccessControlList(from, to)) return false;
  const std::string names = InRoomEnough([&](char* room, std::size_t size) {
                              return ::llistxattr(from.c_str(), room, size);
                            }).value_or("");
  for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1) {
    const char* const name = names.data() + at;
    if (!IsOfUser(name)) continue;
    if (const auto value = ValueOf(from, name)) Set(to, name, *value);
  }
  return true;
}

}  // namespace tessel::posix
