#include "lsp/documents/DiskFiles.h"

#include "base/RuntimeError.h"
#include "lsp/documents/Uri.h"
#include "posix/Posix.h"
#include "posix/PosixFiles.h"
#include "text/Text.h"

namespace tessel::lsp {
namespace {

bool IsConName(std::string_view name) {
  constexpr std::string_view kEnding = ".con";
  return name.size() > kEnding.size() &&
         EqualIgnoringAsciiCase(name.substr(name.size() - kEnding.size()), kEnding);
}

}  // namespace

std::vector<std::string> DiskFiles::In(const std::string& folder) try {
  std::vector<std::string> paths;
  const std::string prefix = folder + "/";
  for (const std::string& name : PosixFiles().Listing(prefix)) {
    if (!IsConName(name) || paths.size() == kMostFiles) continue;
    paths.emplace_back(prefix).append(name);
  }
  return paths;
} catch (const RuntimeError&) {
  return {};
}

std::shared_ptr<Document> DiskFiles::At(const std::string& path) try {
  const auto status = posix::StatusOf(path);
  if (!status || !S_ISREG(status->st_mode) || status->st_size > kMostBytes) {
    known_.erase(path);
    return nullptr;
  }
  const Known now = {
      status->st_size, status->st_mtim.tv_sec, status->st_mtim.tv_nsec, status->st_ino, {}};
  Known& known = known_[path];
  if (known.document == nullptr || !(known == now)) {
    known = now;
    known.document = std::make_shared<Document>(UriOfPath(path), PosixFiles().Read(path));
  }
  return known.document;
} catch (const RuntimeError&) {
  known_.erase(path);
  return nullptr;
}

}  // namespace tessel::lsp
