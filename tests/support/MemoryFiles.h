// Files that exist in memory only.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "services/Paths.h"
#include "services/Services.h"
#include "text/Text.h"
#include "text/Wildcards.h"

namespace tessel::test {

/// Files by full path, with the lookup rules of the real ones: an exact path wins, else the first
/// that differs only in case. Directories exist by being in a file's path.
class MemoryFiles : public Files {
 public:
  explicit MemoryFiles(char separator = '/') : separator_(separator) {}

  /// The files, to be set up and looked at by the test.
  std::map<std::string, std::string> files;
  std::set<std::string> readOnly;    ///< writing these is refused
  std::set<std::string> unreadable;  ///< reading these is refused
  bool diskFull = false;             ///< every writing fails
  std::vector<std::string> written;  ///< the paths of the writings that succeeded, in their order

  std::string Read(const std::string& path) override {
    const std::string existing = Resolve(path);
    if (!files.contains(existing)) Refuse("open", path, "No such file or directory");
    if (unreadable.contains(existing)) Refuse("open", path, "Permission denied");
    return files.at(existing);
  }

  void Write(const std::string& path, std::string_view bytes) override {
    WriteAs(Resolve(path), bytes);
  }

  void WriteAs(const std::string& path, std::string_view bytes) override {
    if (diskFull) Refuse("save", path, "No space left on device");
    if (readOnly.contains(path)) Refuse("save", path, "the file is read-only");
    files[path] = bytes;
    written.push_back(path);
  }

  void SetAttributesNormal(const std::string& path) override { readOnly.erase(Resolve(path)); }

  std::vector<std::string> Listing(const std::string& path) override {
    const std::string existing = Resolve(path);
    if (files.contains(existing)) return {NameOfPath(existing, separator_)};
    const std::string pattern = NameOfPath(path, separator_);
    const std::string directory = path.substr(0, path.size() - pattern.size());
    if (directory.empty() || !(pattern.empty() || HasWildcards(pattern))) return {};
    std::vector<std::string> names;
    for (const auto& [file, bytes] : files) {
      const std::string name = NameOfPath(file, separator_);
      if (ToLowerText(file.substr(0, file.size() - name.size())) == ToLowerText(directory) &&
          MatchesWildcards(name, pattern.empty() ? "*" : pattern)) {
        names.push_back(name);
      }
    }
    return names;
  }

  char Separator() const override { return separator_; }

 private:
  std::string Resolve(const std::string& path) const {
    if (files.contains(path)) return path;
    for (const auto& [file, bytes] : files) {
      if (ToLowerText(file) == ToLowerText(path)) return file;
    }
    return path;
  }

  [[noreturn]] static void Refuse(const std::string& verb, const std::string& path,
                                  const std::string& reason) {
    throw RuntimeError("Cannot " + verb + " " + path + ": " + reason + ".");
  }

  char separator_;
};

}  // namespace tessel::test
