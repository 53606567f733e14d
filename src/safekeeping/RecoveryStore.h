// Unsaved texts, kept on disk for the case that the program ends without asking.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "safekeeping/KeepingLog.h"
#include "safekeeping/KeptText.h"

namespace tessel {

/// The unsaved texts of this run, in a folder of its own that stays locked while the program lives.
/// The texts are written by a thread; nothing here waits for the disk but Flush and the end. Texts
/// stay there for the next run unless Finish was called. Where files cannot be locked, a mark in
/// the folder tells others that this run lives (see RunMark.h).
class RecoveryStore {
 public:
  using Id = int;

  /// `folder` is that of all runs. When it cannot be used, that is the problem to tell. What could
  /// not be kept is tried again after that time.
  explicit RecoveryStore(std::string folder,
                         std::chrono::milliseconds patience = std::chrono::seconds(5));
  ~RecoveryStore();
  RecoveryStore(const RecoveryStore&) = delete;
  RecoveryStore& operator=(const RecoveryStore&) = delete;

  /// Keeps the text of a document under a number of the caller's choice, in place of the text that
  /// had it. `path` is empty for a document without a file. `base`: see KeptText.
  void Keep(Id id, std::string path, std::string bytes, std::optional<std::uint64_t> base = {});
  void Drop(Id id);
  /// The same, but not before the text with the number `by`, which holds what this one held, is on
  /// the disk.
  void DropReplaced(Id id, Id by);
  /// Notes from now on when texts are taken and when they are kept; null: nothing. It outlives
  /// this.
  void LogTo(KeepingLog* log) { log_ = log; }
  /// Waits until everything is on the disk. Returns false when something could not be kept.
  bool Flush();
  /// The program ends normally: nothing that is kept here is needed any more, but for these.
  void Finish(const std::set<Id>& needed = {});
  /// What went wrong, once until it works again.
  std::optional<std::string> TakeProblem();
  /// True once after the folder had gone, with all texts that were in it, and was made anew.
  bool TakeLoss();

 private:
  struct Order {
    bool keep = false;
    KeptText text;
    std::string bytes;
    std::optional<Id> after = {};  // the order that is to be carried out first
    int logged = 0;                // its number in the log
  };

  void MakeFolder();
  void UseFolder();
  bool WaitForOrders(std::unique_lock<std::mutex>& guard);
  std::map<Id, Order>::iterator NextOrder();
  void Work();
  void Carry(Id id, const Order& order);
  std::string Carried(Id id, const Order& order);
  void Note(std::map<Id, Order>::node_type order, std::string problem);
  void Give(Id id, Order&& order);

  std::string parent_;
  std::chrono::milliseconds patience_;
  std::atomic<KeepingLog*> log_ = nullptr;

  // Of the thread, while there is one.
  std::string path_;
  std::unique_ptr<PrivateFolder> folder_;
  std::unique_ptr<posix::Descriptor> lock_;

  std::mutex mutex_;
  std::condition_variable changed_;
  std::map<Id, Order> orders_;
  std::map<Id, Order> again_;  // those that failed
  std::set<Id> failing_;       // texts that are not on the disk as they should be
  bool working_ = false;
  bool ending_ = false;
  bool unusable_ = false;  // there is no folder yet
  bool lost_ = false;
  bool told_ = false;
  std::string problem_;
  std::thread worker_;
};

/// The unsaved texts of runs that ended without asking: killed, crashed, or without power. While it
/// lives they are offered to nobody else; where files cannot be locked, two programs that start at
/// once are offered the same. There a run of another computer is taken for one that lives, which
/// Problem says.
class AbandonedTexts {
 public:
  /// The bytes of a file now, or nothing when there is none.
  using OnDisk = std::function<std::optional<std::string>(const std::string& path)>;

  /// Texts that are safe (their file holds the same bytes) are taken away at once.
  AbandonedTexts(const std::string& folder, const OnDisk& onDisk);
  ~AbandonedTexts();
  AbandonedTexts(const AbandonedTexts&) = delete;
  AbandonedTexts& operator=(const AbandonedTexts&) = delete;

  /// The oldest first.
  const std::vector<KeptBytes>& Texts() const { return texts_; }
  /// Takes them away for good.
  void Discard();
  /// Why there may be texts that are not among these. They stay where they are.
  const std::optional<std::string>& Problem() const { return problem_; }

 private:
  struct Run {
    std::string path;
    int lock;
    std::vector<std::string> files;  // of the texts that are offered
  };

  void AdoptAll(const std::string& folder, const OnDisk& onDisk);
  void Adopt(const std::string& path, const OnDisk& onDisk);
  bool IsEnded(const PrivateFolder& folder, const std::string& path);
  void AdoptText(const PrivateFolder& folder, const std::string& file, Run& run,
                 const OnDisk& onDisk);

  std::vector<Run> runs_;
  std::vector<KeptBytes> texts_;
  std::optional<std::string> problem_;
};

}  // namespace tessel
