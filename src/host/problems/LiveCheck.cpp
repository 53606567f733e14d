#include "host/problems/LiveCheck.h"

#include <memory>
#include <new>
#include <utility>

#include "base/RuntimeError.h"
#include "documents/Templates.h"
#include "host/changes/Background.h"
#include "posix/PosixFiles.h"
#include "services/Paths.h"

namespace tessel {
namespace {

std::string FileNameOf(const Document& document) {
  const std::string path = document.Path();
  return path.empty() ? document.Name() : NameOfPath(path, '/');
}

/// Null where there is no memory for a check.
std::shared_ptr<CheckedTexts> CheckedOrNull(const TextCheck& task) {
  try {
    return std::make_shared<CheckedTexts>(Checked(task));
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

std::vector<ScriptWord> WordsOf(SettingsStore& settings) try {
  return ReadScriptWords(settings);
} catch (const RuntimeError&) {  // none, then
  return {};
}

std::string TemplateText(const std::string& directory, const char* code) try {
  return PosixFiles().Read(directory + "/" + std::string(TemplateFile(code)));
} catch (const RuntimeError&) {
  return {};
}

}  // namespace

LiveCheck::LiveCheck(Uses uses, ProblemList& problems, QObject* parent)
    : QObject(parent), uses_(std::move(uses)), problems_(problems), pause_(kPause, this) {
  connect(&pause_, &Pause::over, this, &LiveCheck::Look);
  ListenToDocuments();
  ListenToWishes();
  pause_.Begin();
}

void LiveCheck::ListenToDocuments() {
  DocumentList& documents = uses_.control.Tessel().OpenDocuments();
  subscriptions_ = {
      uses_.scripts.Changed.Connect([this](Slot slot, const ChangedRange& change) {
        problems_.Changed(slot, change);
        pause_.Begin();
      }),
      documents.Loaded.Connect([this](const Document&) {
        ++comings_;
        pause_.Begin();
      }),
      documents.Saved.Connect([this](const Document&) { pause_.Begin(); }),  // by another name
      documents.AboutToDrop.Connect([this](const Document& document) {
        ++comings_;
        problems_.Dropped(document.Place());
        pause_.Begin();
      }),
      documents.Moved.Connect([this](Slot from, Slot to) {
        ++comings_;
        problems_.Moved(from, to);
        pause_.Begin();
      }),
  };
}

void LiveCheck::ListenToWishes() {
  subscriptions_.push_back(uses_.preferences.Changed.Connect([this](Wish wish) {
    if (wish == Wish::kLiveCheck) Look();
  }));
  // The list of words is filled anew where they change.
  subscriptions_.push_back(uses_.control.Tessel().Controls().lstWords.Refresh.Connect([this] {
    words_.reset();
    begun_.clear();
    pause_.Begin();
  }));
}

// --- What is checked

std::vector<Document> LiveCheck::Documents() const {
  std::vector<Document> documents = uses_.control.Tessel().OpenDocuments().All();
  std::erase_if(documents, [this](const Document& document) {
    return !uses_.scripts.Has(document.Place()) ||
           (document.IsFree() && document.Editor().Length() == 0);
  });
  return documents;
}

std::vector<CheckedDocument> LiveCheck::Identities() const {
  std::vector<CheckedDocument> identities;
  for (const Document& document : Documents()) {
    identities.push_back(
        {document.Place(), document.Editor().Store().Revision(), FileNameOf(document)});
  }
  return identities;
}

LiveChecking LiveCheck::NowOf() const {
  if (!uses_.preferences.Wants(Wish::kLiveCheck)) return LiveChecking::kOff;
  Position bytes = 0;
  for (const Document& document : Documents()) bytes += document.Editor().Length();
  return bytes > kMostBytes ? LiveChecking::kTooLong : LiveChecking::kOn;
}

void LiveCheck::ReadKnowledge() {
  if (!words_) words_ = WordsOf(uses_.settings);
  if (!older_) older_ = TemplateText(uses_.hostDirectory, "13DU");
  if (!newer_) newer_ = TemplateText(uses_.hostDirectory, "15AU");
}

TextCheck LiveCheck::Task() {
  ReadKnowledge();
  TextCheck task{Identities(), {}, *words_, *older_, *newer_};
  task.texts.reserve(task.documents.size());
  for (const Document& document : Documents()) task.texts.push_back(document.Editor().Text());
  return task;
}

// --- When it is checked

void LiveCheck::CheckNow() {
  asked_ = true;
  begun_.clear();
  Look();
}

// What was found in other circumstances is out of date soon.
void LiveCheck::SetNow(LiveChecking now) {
  if (now == now_) return;
  now_ = now;
  begun_.clear();
  problems_.Clear();
  emit nowChanged();
}

void LiveCheck::Look() {
  SetNow(NowOf());
  if (!running_ && IsWanted() && Identities() != begun_) Start();
}

void LiveCheck::Start() {
  try {
    begun_ = Identities();
    InBackground(
        *this, [task = Task()] { return CheckedOrNull(task); },
        [this, comings = comings_](const std::shared_ptr<CheckedTexts>& checked) {
          running_ = false;
          checked == nullptr ? GiveUp() : Use(std::move(*checked), comings);
        });
    running_ = true;
  } catch (const std::bad_alloc&) {
    GiveUp();
  }
}

void LiveCheck::GiveUp() {
  asked_ = false;
  emit said(tr("There is not enough memory for the check."));
}

void LiveCheck::Use(CheckedTexts checked, int comings) {
  const bool same = comings == comings_ && checked.documents == Identities();
  if (!same || !IsWanted()) return pause_.Begin();
  asked_ = false;
  problems_.Take(std::move(checked));
}

}  // namespace tessel
