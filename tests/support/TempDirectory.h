// A directory of a test's own.
#pragma once

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tessel::test {

/// An ordinary user and group, who own nothing on the system.
inline constexpr unsigned kNobody = 65534;

/// Made empty in the system's place for temporary files; gone with all that is in it afterwards.
class TempDirectory {
 public:
  TempDirectory() {
    std::string pattern = std::filesystem::temp_directory_path() / "tessel-test-XXXXXX";
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary directory");
    path_ = pattern;
    ::chmod(path_.c_str(), 0755);
  }
  ~TempDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDirectory(const TempDirectory&) = delete;
  TempDirectory& operator=(const TempDirectory&) = delete;

  const std::string& Path() const { return path_; }
  /// The full path of a name in it.
  std::string operator/(std::string_view name) const { return path_ + "/" + std::string(name); }

  /// Makes a file, and the directories on the way to it; returns its full path.
  std::string Put(std::string_view name, std::string_view bytes) const {
    const std::string path = *this / name;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
  }

  /// The names in it, hidden ones too, in byte order.
  std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(path_)) {
      names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    return names;
  }

 private:
  std::string path_;
};

/// The bytes of a file, read without the code under test.
inline std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

inline mode_t ModeOf(const std::string& path) {
  struct stat status {};
  ::stat(path.c_str(), &status);
  return status.st_mode & 07777;
}

}  // namespace tessel::test
