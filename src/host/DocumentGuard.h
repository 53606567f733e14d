// Which file each document has, and what may be written over it.
#pragma once

#include <QString>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "documents/DocumentHost.h"
#include "host/RealPaths.h"
#include "safekeeping/DiskState.h"
#include "services/Services.h"
#include "surface/DocumentList.h"

namespace tessel {

/// Knows for each document what its file looked like when it was loaded or saved. Shows the tab
/// that has a file already, whatever the spelling of its path; refuses to write over what others
/// have changed, and asks before a document is written to a file that is not its own, that another
/// tab shows, or that is read-only.
class DocumentGuard : public DocumentHost {
 public:
  /// All of them outlive this.
  DocumentGuard(GuardedFiles& files, MessageBox& messages, SettingsStore& settings)
      : files_(files), messages_(messages), realPaths_(settings) {}

  /// The documents of the control whose host this is.
  void Watch(DocumentList& documents);

  std::optional<std::string> BeforeOpening(const std::string& path) override;
  bool BeforeSaving(const Document& document, const std::string& path) override;

  /// True when the document's file is not as it was when it was loaded or saved.
  bool ChangedByOthers(const Document& document);
  /// The hash of the file's bytes that the document's text began from, where that is known.
  std::optional<std::uint64_t> BaseOf(const Document& document);
  /// Takes the document's file as it is now: it may be written over.
  void Accept(const Document& document);

 private:
  using Record = std::optional<FileRecord>;

  Record& At(Slot slot);
  void Renew(const Document& document);
  std::optional<Document> OtherWith(const DiskState& file, const Document* besides) const;
  bool Agrees(const QString& question);
  bool MayReplace(const std::string& path, const DiskState& file, const QString& question);
  std::optional<std::string> SpellingMeantBy(const std::string& path);

  GuardedFiles& files_;
  MessageBox& messages_;
  RealPaths realPaths_;
  DocumentList* documents_ = nullptr;
  std::vector<Record> records_;  // by slot; nothing for a document without a file
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
