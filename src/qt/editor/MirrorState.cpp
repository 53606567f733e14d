#include "qt/editor/MirrorState.h"

#include <QtGlobal>

namespace tessel {
namespace {

const char* NameOf(MirrorState state) {
  constexpr const char* kNames[] = {"in step", "ahead",       "stale",
                                    "showing", "taking over", "overtaken"};
  return kNames[static_cast<int>(state)];
}

}  // namespace

void MirrorStateMachine::ChangeTo(MirrorState next) {
  if (IsLegal({now_, next})) {
    now_ = next;
    return;
  }
  qCritical("The editor's mirror cannot go from \"%s\" to \"%s\".", NameOf(now_), NameOf(next));
  now_ = MirrorState::kStale;
}

}  // namespace tessel
