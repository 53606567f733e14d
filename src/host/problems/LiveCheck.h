// Checks the open documents while the user works on them.
#pragma once

#include <QObject>
#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "host/preferences/Preferences.h"
#include "host/problems/ProblemList.h"
#include "host/script/OpenScripts.h"
#include "qt/TesselWidget.h"
#include "qt/base/Pause.h"

namespace tessel {

/// Whether the documents are checked by themselves.
enum class LiveChecking {
  kOn,
  kOff,      ///< the user does not want it
  kTooLong,  ///< the texts are too long for it
};

/// Checks all open documents together, as one mod, once nothing has changed for a while: copies of
/// the texts, on another thread. A key costs a note of what it changed. What was found in texts
/// that have changed meanwhile is dropped.
class LiveCheck : public QObject {
  Q_OBJECT

 public:
  static constexpr std::chrono::milliseconds kPause{500};
  /// So many bytes, in all documents together, are checked by themselves.
  static constexpr Position kMostBytes = 4'000'000;

  /// What it uses; all of it outlives it.
  struct Uses {
    TesselWidget& control;
    OpenScripts& scripts;
    Preferences& preferences;
    SettingsStore& settings;    ///< it has the script words
    std::string hostDirectory;  ///< of the templates
  };
  LiveCheck(Uses uses, ProblemList& problems, QObject* parent);

  LiveChecking Now() const { return now_; }
  /// Checks at once, however long the texts are.
  void CheckNow();

 signals:
  /// Now() is another one.
  void nowChanged();
  /// A sentence for the status bar.
  void said(const QString& sentence);

 private:
  void ListenToDocuments();
  void ListenToWishes();
  void Look();
  void Start();
  void GiveUp();
  void Use(CheckedTexts checked, int comings);
  void SetNow(LiveChecking now);
  LiveChecking NowOf() const;
  bool IsWanted() const { return now_ == LiveChecking::kOn || asked_; }
  std::vector<Document> Documents() const;
  std::vector<CheckedDocument> Identities() const;
  TextCheck Task();
  void ReadKnowledge();

  Uses uses_;
  ProblemList& problems_;
  Pause pause_;
  LiveChecking now_ = LiveChecking::kOn;
  std::vector<CheckedDocument> begun_;  // what the last check began with
  int comings_ = 0;                     // of documents, and goings
  bool running_ = false;
  bool asked_ = false;  // CheckNow waits for its result
  std::optional<std::vector<ScriptWord>> words_;
  std::optional<std::string> older_, newer_;  // templates
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
