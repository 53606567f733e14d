#include "lsp/documents/Workspace.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <utility>

#include "language/Statement.h"
#include "lsp/documents/Uri.h"
#include "text/Text.h"

namespace tessel::lsp {
namespace {

constexpr int kDeepestFolder = 4;
constexpr std::size_t kMostFolders = 200;

std::string_view LastPart(std::string_view path) {
  const auto slash = path.find_last_of("/\\");
  return slash == path.npos ? path : path.substr(slash + 1);
}

/// Without a path, what a scheme has in front of its last part: documents that are in no file.
std::string FolderOf(std::string_view key) {
  const auto slash = key.rfind('/');
  return std::string(slash == key.npos ? std::string_view() : key.substr(0, slash));
}

/// A file of a folder and those that it includes, by their places among the files.
struct Node {
  std::vector<std::size_t> includes;
  bool isIncluded = false;
  bool isReached = false;
};

std::vector<Node> NodesOf(const Documents& files) {
  std::vector<Node> nodes(files.size());
  for (std::size_t i = 0; i < files.size(); ++i) {
    const language::Script& script = files[i]->Script();
    for (const language::Mark mark : script.Marks()) {
      if (mark.keyword != language::Keyword::kInclude) continue;
      const std::string name(LastPart(script.Text(language::NameOf(script, mark))));
      const auto found = std::ranges::find_if(files, [&](const DocumentRef& file) {
        return EqualIgnoringAsciiCase(LastPart(KeyOfUri(file->Uri())), name);
      });
      const auto index = static_cast<std::size_t>(found - files.begin());
      if (found == files.end() || index == i) continue;
      nodes[i].includes.push_back(index);
      nodes[index].isIncluded = true;
    }
  }
  return nodes;
}

/// Adds a file behind those that it includes.
void AddWithIncludes(std::vector<Node>& nodes, const Documents& files, std::size_t index,
                     std::vector<bool>& taken, Documents& mod) {
  if (taken[index]) return;
  taken[index] = true;
  nodes[index].isReached = true;
  for (const std::size_t included : nodes[index].includes) {
    AddWithIncludes(nodes, files, included, taken, mod);
  }
  mod.push_back(files[index]);
}

bool Holds(const Documents& mod, const Document& document) {
  return std::ranges::any_of(mod, [&](const DocumentRef& each) { return each.get() == &document; });
}

/// The folder and those below it, but for hidden ones.
void AddFolders(const std::filesystem::path& folder, int depth, std::set<std::string>& folders) {
  if (folders.size() >= kMostFolders || !folders.insert(folder.string()).second) return;
  if (depth == kDeepestFolder) return;
  std::error_code ignored;
  for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
    const bool hidden = entry.path().filename().string().starts_with('.');
    if (!hidden && entry.is_directory(ignored) && !entry.is_symlink(ignored)) {
      AddFolders(entry.path(), depth + 1, folders);
    }
  }
}

}  // namespace

void Workspace::AddFolder(const std::string& path) {
  RemoveFolder(path);
  folders_.push_back(path);
}

void Workspace::RemoveFolder(const std::string& path) { std::erase(folders_, path); }

Document& Workspace::Open(const std::string& uri, ClientText text,
                          std::optional<std::int64_t> version) {
  DocumentRef& document = open_[KeyOfUri(uri)];
  document = std::make_shared<Document>(uri, std::move(text), version);
  return *document;
}

bool Workspace::Close(std::string_view uri) { return open_.erase(KeyOfUri(uri)) > 0; }

Document* Workspace::Find(std::string_view uri) {
  const auto found = open_.find(KeyOfUri(uri));
  return found == open_.end() ? nullptr : found->second.get();
}

Documents Workspace::OpenDocuments() const {
  Documents documents;
  documents.reserve(open_.size());
  for (const auto& [key, document] : open_) documents.push_back(document);
  return documents;
}

Documents Workspace::FilesOf(const std::string& folder) {
  Documents files;
  for (const auto& [key, document] : open_) {
    if (FolderOf(key) == folder) files.push_back(document);
  }
  if (!folder.starts_with('/')) return files;
  for (const std::string& path : DiskFiles::In(folder)) {
    if (open_.contains(path)) continue;
    if (DocumentRef file = disk_.At(path)) files.push_back(std::move(file));
  }
  return files;
}

std::vector<Documents> Workspace::ModsIn(const std::string& folder) {
  const Documents files = FilesOf(folder);
  std::vector<Node> nodes = NodesOf(files);
  std::vector<Documents> mods;
  const auto add = [&](std::size_t index) {
    std::vector<bool> taken(files.size());
    AddWithIncludes(nodes, files, index, taken, mods.emplace_back());
  };
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (!nodes[i].isIncluded) add(i);
  }
  // What is left includes itself in a circle.
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (!nodes[i].isReached) add(i);
  }
  return mods;
}

std::vector<Documents> Workspace::OpenMods() {
  std::set<std::string> folders;
  for (const auto& [key, document] : open_) folders.insert(FolderOf(key));
  std::vector<Documents> open;
  for (const std::string& folder : folders) {
    for (Documents& mod : ModsIn(folder)) {
      if (std::ranges::any_of(mod, &Document::IsOpen, &DocumentRef::operator*)) {
        open.push_back(std::move(mod));
      }
    }
  }
  return open;
}

std::vector<Documents> Workspace::ModsOf(const Document& document) {
  std::vector<Documents> mods = ModsIn(FolderOf(KeyOfUri(document.Uri())));
  std::erase_if(mods, [&](const Documents& mod) { return !Holds(mod, document); });
  return mods;
}

Documents Workspace::FilesAround(const Document& document) {
  Documents files;
  for (const Documents& mod : ModsOf(document)) {
    for (const DocumentRef& file : mod) {
      if (Holds(files, *file)) continue;
      const bool isFirst = file.get() == &document;
      files.insert(isFirst ? files.begin() : files.end(), file);
    }
  }
  return files;
}

Documents Workspace::Everything() {
  std::set<std::string> folders;
  for (const std::string& folder : folders_) AddFolders(folder, 0, folders);
  Documents files = OpenDocuments();
  for (const std::string& folder : folders) {
    for (const DocumentRef& file : FilesOf(folder)) {
      if (!Holds(files, *file)) files.push_back(file);
    }
  }
  return files;
}

}  // namespace tessel::lsp
