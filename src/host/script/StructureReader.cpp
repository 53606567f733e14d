#include "host/script/StructureReader.h"

#include <algorithm>

namespace tessel {
namespace {

constexpr int kStatementsAtOnce = 500;
constexpr int kPieceMilliseconds = 4;
constexpr int kSoonMilliseconds = 50;  // once the document has been drawn

}  // namespace

StructureReader::StructureReader(DocumentList& documents, OpenScripts& scripts, QObject* parent)
    : QObject(parent), documents_(documents), scripts_(scripts) {
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &StructureReader::ReadOn);
  subscriptions_ = {
      scripts_.Changed.Connect([this](Slot slot, const ChangedRange&) {
        if (walk_ && slot == slot_) walk_.reset();
        if (slot == documents_.Current().Place()) StartIn(kPauseMilliseconds);
      }),
      documents_.Shown.Connect([this](const Document&) { StartIn(kSoonMilliseconds); }),
      documents_.Loaded.Connect([this](const Document&) { StartIn(kSoonMilliseconds); }),
  };
}

void StructureReader::SetWish(const QObject* by, Wish wish) {
  if (wish != Wish::kNothing) {
    wishes_[by] = wish;
    StartIn(kSoonMilliseconds);
    return;
  }
  wishes_.erase(by);
  if (!wishes_.empty()) return;
  walk_.reset();
  timer_.stop();
}

bool StructureReader::WantsSymbols() const {
  return std::ranges::any_of(wishes_,
                             [](const auto& wish) { return wish.second == Wish::kSymbolsToo; });
}

void StructureReader::StartIn(int milliseconds) {
  if (wishes_.empty()) return;
  walk_.reset();
  timer_.start(milliseconds);
}

void StructureReader::ReadOn() {
  if (!walk_) {
    slot_ = documents_.Current().Place();
    if (!scripts_.Has(slot_)) return;
    walk_.emplace(scripts_.Of(slot_), WantsSymbols());
  }
  QElapsedTimer time;
  time.start();
  while (walk_->Read(kStatementsAtOnce)) {
    if (time.elapsed() < kPieceMilliseconds) continue;
    timer_.start(0);
    return;
  }
  const language::Structure structure = walk_->Take();
  walk_.reset();
  Read.Raise(slot_, structure);
}

}  // namespace tessel
