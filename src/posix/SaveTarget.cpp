#include "posix/SaveTarget.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <climits>

#include "posix/SharedFolder.h"

namespace tessel::posix {
namespace {

constexpr int kMostLinks = 40;
constexpr int kToReachOnly = O_PATH | O_NOFOLLOW | O_CLOEXEC;

/// Takes the first name off a path, with the separators in front of it. Empty behind the last
/// separator.
std::string TakeName(std::string& path) {
  path.erase(0, std::min(path.find_first_not_of('/'), path.size()));
  const std::size_t end = std::min(path.find('/'), path.size());
  std::string name = path.substr(0, end);
  path.erase(0, end);
  return name;
}

Descriptor StartOf(const std::string& path) {
  const char* const start = path.starts_with('/') ? "/" : ".";
  return Descriptor(Checked([&] { return ::open(start, kToReachOnly); }));
}

void RefusePlantedLink(int directory, const struct stat& link) {
  if (!MayBePlanted(StatusOfOpen(directory), link)) return;
  throw FileProblem(
      "a symbolic link of somebody else leads there, in a folder that everybody can write to");
}

std::string TextOf(const Descriptor& link) {
  std::string text(PATH_MAX, '\0');
  const auto length =
      Checked([&] { return ::readlinkat(link.Number(), "", text.data(), text.size()); });
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace

// Each step is opened before it is looked at, so that nothing can take its place in between.
SaveTarget FindSaveTarget(std::string path) {
  if (path.empty()) throw FileProblem(ENOENT);
  Descriptor directory = StartOf(path);
  int links = 0;
  for (;;) {
    std::string name = TakeName(path);
    const bool last = path.empty();
    if (name.empty()) return {std::move(directory), "."};
    Descriptor step(
        Retry([&] { return ::openat(directory.Number(), name.c_str(), kToReachOnly); }));
    if (step.Number() == -1) {
      if (last && errno == ENOENT) return {std::move(directory), std::move(name)};
      throw FileProblem(errno);
    }
    const struct stat status = StatusOfOpen(step.Number());
    if (S_ISLNK(status.st_mode)) {
      if (++links > kMostLinks) throw FileProblem(ELOOP);
      RefusePlantedLink(directory.Number(), status);
      path.insert(0, TextOf(step));
      if (path.starts_with('/')) directory = StartOf(path);
    } else if (last) {
      return {std::move(directory), std::move(name)};
    } else if (!S_ISDIR(status.st_mode)) {
      throw FileProblem(ENOTDIR);
    } else {
      directory = std::move(step);
    }
  }
}

void RefusePlanted(const SaveTarget& target) {
  const auto status = StatusOf(target);
  if (!status || !MayBePlanted(StatusOfOpen(target.directory.Number()), *status)) return;
  throw FileProblem("it belongs to somebody else, in a folder that everybody can write to");
}

std::optional<struct stat> StatusOf(const SaveTarget& target) {
  struct stat status {};
  if (::fstatat(target.directory.Number(), target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) ==
      -1) {
    return std::nullopt;
  }
  return status;
}

}  // namespace tessel::posix
