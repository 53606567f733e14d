// Where a mirror stands between its two sides.
#pragma once

#include <algorithm>

namespace tessel {

enum class MirrorState {
  kInStep,      // the document holds the model's text
  kAhead,       // the document has edits that the model has not been told of
  kStale,       // the document holds an old text: all that counts is the model's
  kShowing,     // the document is being changed after the model
  kTakingOver,  // the model is being told of the document's edits or selection
  kOvertaken,   // one of these two, and the model's text has become another one meanwhile
};

struct MirrorStateChange {
  MirrorState from;
  MirrorState to;

  bool operator==(const MirrorStateChange&) const = default;
};

/// All changes that there are.
inline constexpr MirrorStateChange kMirrorStateChanges[] = {
    // The model has something new to show, or the document asks for colours.
    {MirrorState::kInStep, MirrorState::kShowing},
    // The document announces an edit that is not the mirror's.
    {MirrorState::kInStep, MirrorState::kAhead},
    // A person, or a screen reader, has moved the selection, or may have.
    {MirrorState::kInStep, MirrorState::kTakingOver},
    // The model's text changes while nobody can see it.
    {MirrorState::kInStep, MirrorState::kStale},

    {MirrorState::kAhead, MirrorState::kTakingOver},
    // The model's text changes before it was told of the document's edits: they are void.
    {MirrorState::kAhead, MirrorState::kStale},

    // The model can be seen, or somebody looks: the document catches up.
    {MirrorState::kStale, MirrorState::kShowing},

    {MirrorState::kShowing, MirrorState::kInStep},
    // A handler changed the model's text, or the document failed to follow.
    {MirrorState::kShowing, MirrorState::kOvertaken},

    {MirrorState::kTakingOver, MirrorState::kInStep},
    // A handler of the model sent keys to the document meanwhile.
    {MirrorState::kTakingOver, MirrorState::kAhead},
    // A handler changed the model's text, or the model refused an edit.
    {MirrorState::kTakingOver, MirrorState::kOvertaken},

    {MirrorState::kOvertaken, MirrorState::kStale},
};

constexpr bool IsLegal(MirrorStateChange change) {
  return std::ranges::find(kMirrorStateChanges, change) != std::ranges::end(kMirrorStateChanges);
}

/// A state that follows the table. A change that is not in it is a defect: it is reported as a
/// critical message (in every build), and leads to kStale, from where the document is made anew.
class MirrorStateMachine {
 public:
  MirrorState Now() const { return now_; }
  bool Is(MirrorState state) const { return now_ == state; }
  void ChangeTo(MirrorState next);

 private:
  MirrorState now_ = MirrorState::kStale;
};

}  // namespace tessel
