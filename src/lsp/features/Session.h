// What a request finds: the documents, what the client can do, what has been found in a check.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "check/Check.h"
#include "lsp/documents/Positions.h"
#include "lsp/documents/Workspace.h"
#include "lsp/features/CheckJob.h"
#include "lsp/messages/Json.h"
#include "words/ScriptWords.h"

namespace tessel::lsp {

/// What the server knows beside the documents.
struct Resources {
  std::vector<ScriptWord> words;
  std::string olderTemplate, newerTemplate;  ///< user files; empty where they cannot be read
  std::string version;                       ///< of the program

  check::Knowledge AsKnowledge() const { return {words, olderTemplate, newerTemplate}; }
};

/// What the client said of itself.
struct Client {
  PositionEncoding encoding = PositionEncoding::kUtf16;
  bool takesDocumentChanges = false;  ///< edits of files with their versions
  bool appliesEdits = false;
  bool watchesFiles = false;
  std::optional<std::int64_t> process;
};

/// What a check has found in a document.
struct Checked {
  std::uint64_t revision = 0;
  check::Findings findings;
};

class Session {
 public:
  using Send = std::function<void(const std::string& message)>;

  Session(Resources resources, Send send) : known(std::move(resources)), send_(std::move(send)) {}

  Resources known;
  Client client;
  Workspace workspace;

  void Notify(const char* method, Json params);
  void Request(const char* method, Json params);
  /// One of the log of the client.
  void Log(const std::string& sentence);

  /// Something has changed that a check looks at.
  void WantCheck() { ++changes_; }
  std::uint64_t Changes() const { return changes_; }
  CheckJob NextCheck() { return CheckJob(workspace.OpenMods()); }
  /// Takes what a check has found, and tells the client; nothing of a text that has changed since.
  void Publish(const CheckJob& job, std::vector<check::Findings> found);
  /// The client may have forgotten what it was told of that document.
  void TellAnew(const std::string& uri);
  /// What a check finds in the document as it stands. Where there has been none since it changed,
  /// one is made if it is quick; else there is nothing until that on the thread is finished.
  const check::Findings& FindingsIn(const Document& document);

 private:
  void PublishOne(const Document& document, const check::Findings& findings);

  Send send_;
  std::int64_t lastRequest_ = 0;
  std::uint64_t changes_ = 0;
  std::map<std::string, Checked> checked_;        // by KeyOfUri
  std::map<std::string, std::string> published_;  // what was told last, by URI
};

// --- What requests are about

/// The open document that "textDocument" of the parameters names.
Document& DocumentIn(Session& session, const Json& params);
/// The offset that "position" of the parameters names.
Position OffsetIn(const Session& session, const Json& params, const Document& document);
Json LocationOf(const Session& session, const Document& document, language::Range range);

/// The document's file, without its folder.
std::string NameOf(const Document& document);

}  // namespace tessel::lsp
