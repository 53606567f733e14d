// The documents that the client has open, the files around them, and which of them are one mod.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "lsp/documents/DiskFiles.h"
#include "lsp/documents/Document.h"

namespace tessel::lsp {

using DocumentRef = std::shared_ptr<Document>;
using Documents = std::vector<DocumentRef>;

/// A mod is a file with all that it includes, and what these include; a file that none includes
/// stands for one. Files are found in the folder of who includes them, whatever their case: those
/// that are open, and else those on the disk.
class Workspace {
 public:
  void AddFolder(const std::string& path);
  void RemoveFolder(const std::string& path);

  Document& Open(const std::string& uri, ClientText text, std::optional<std::int64_t> version);
  /// False where it was not open.
  bool Close(std::string_view uri);
  /// The open document; null where there is none.
  Document* Find(std::string_view uri);
  Documents OpenDocuments() const;

  /// The mods that have an open document, and those that a document belongs to. In a mod the files
  /// that are included stand in front.
  std::vector<Documents> OpenMods();
  std::vector<Documents> ModsOf(const Document& document);
  /// All files of the latter, the document first.
  Documents FilesAround(const Document& document);
  /// All open documents, and the CON files of the workspace's folders and those below.
  Documents Everything();

 private:
  Documents FilesOf(const std::string& folder);
  std::vector<Documents> ModsIn(const std::string& folder);

  std::vector<std::string> folders_;
  std::map<std::string, DocumentRef, std::less<>> open_;  // by KeyOfUri
  DiskFiles disk_;
};

}  // namespace tessel::lsp
