#include "posix/PosixFiles.h"

#include <dirent.h>
#include <fcntl.h>

#include <algorithm>
#include <memory>

#include "base/RuntimeError.h"
#include "posix/PathResolution.h"
#include "posix/Posix.h"
#include "posix/SaveTarget.h"
#include "services/Paths.h"
#include "text/Wildcards.h"

namespace tessel {
namespace {

using namespace posix;

/// Where every FileProblem becomes the sentence for the user.
template <class Action>
auto OrTell(const char* verb, const std::string& path, Action action) {
  std::string shown = path;
  try {
    // The system would take the name for ended there, and reach another file.
    if (path.find('\0') != path.npos) {
      std::ranges::replace(shown, '\0', '?');
      throw FileProblem("its name contains a NUL character");
    }
    return action();
  } catch (const FileProblem& problem) {
    throw RuntimeError(std::string("Cannot ") + verb + " " + shown + ": " + problem.what() + ".");
  }
}

bool IsFile(const std::string& path) {
  const auto status = StatusOf(path);
  return status && !S_ISDIR(status->st_mode);
}

std::vector<std::string> FilesIn(const std::string& directory, std::string_view pattern) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> listing(
      ::opendir(directory.empty() ? "." : directory.c_str()), ::closedir);
  if (listing == nullptr) return names;
  while (const dirent* entry = ::readdir(listing.get())) {
    const std::string name = entry->d_name;
    if (MatchesWildcards(name, pattern) && IsFile(directory + name)) names.push_back(name);
  }
  std::ranges::sort(names);
  return names;
}

}  // namespace

std::string PosixFiles::Read(const std::string& path) {
  return OrTell("open", path, [&] {
    const std::string existing = ResolveIgnoringCase(path);
    // Opening alone would wake up whoever writes to a pipe: look first.
    if (const auto status = StatusOf(existing)) RefuseUnlessRegular(*status);
    const Descriptor file(Checked(
        [&] { return ::open(existing.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC); }));
    struct stat status {};
    Checked([&] { return ::fstat(file.Number(), &status); });
    RefuseUnlessRegular(status);
    return ReadAll(file.Number());
  });
}

void PosixFiles::Write(const std::string& path, std::string_view bytes) {
  OrTell("save", path, [&] { Save(ResolveIgnoringCase(path), bytes, Wanted()); });
}

void PosixFiles::WriteAs(const std::string& path, std::string_view bytes) {
  OrTell("save", path, [&] { Save(path, bytes, Wanted()); });
}

void PosixFiles::WriteUnlessChanged(const std::string& path, std::string_view bytes,
                                    const struct stat& read) {
  OrTell("save", path, [&] { Save(ResolveIgnoringCase(path), bytes, {.unchanged = read}); });
}

void PosixFiles::WriteNew(const std::string& path, std::string_view bytes) {
  OrTell("save", path, [&] { Save(path, bytes, {.isNew = true}); });
}

void PosixFiles::Save(const std::string& path, std::string_view bytes,
                      const SaveCondition& condition) {
  KeepOldBytes keep;
  if (keeper_) keep = [&](std::string_view old) { keeper_(path, old); };
  SaveWhole(FindSaveTarget(path), bytes, keep, condition);
}

void PosixFiles::SetAttributesNormal(const std::string& path) {
  OrTell("clear the read-only attribute of", path, [&] {
    const std::string existing = ResolveIgnoringCase(path);
    const auto status = StatusOf(existing);
    if (!status || !S_ISREG(status->st_mode) || (status->st_mode & S_IWUSR) != 0) return;
    const SaveTarget target = FindSaveTarget(existing);
    Checked([&] {
      return ::fchmodat(target.directory.Number(), target.name.c_str(),
                        (status->st_mode & 07777) | S_IWUSR, 0);
    });
  });
}

std::vector<std::string> PosixFiles::Listing(const std::string& path) {
  if (path.empty() || path.find('\0') != path.npos) return {};
  const std::string existing = ResolveIgnoringCase(path);
  if (existing.ends_with('/')) return FilesIn(existing, "*");
  const std::string name = NameOfPath(existing, '/');
  if (StatusOfLink(existing)) {
    return IsFile(existing) ? std::vector{name} : std::vector<std::string>{};
  }
  return HasWildcards(name) ? FilesIn(DirectoryPart(existing), name) : std::vector<std::string>{};
}

}  // namespace tessel
