#include "host/find/ReplaceMatches.h"

#include <QCoreApplication>
#include <algorithm>
#include <optional>
#include <utility>

#include "base/RuntimeError.h"

namespace tessel {
namespace {

struct ReplaceTexts {
  Q_DECLARE_TR_FUNCTIONS(ReplaceMatches)
};

/// Each change moves what stands behind it: so many bytes are moved in about a second.
constexpr Position kMostMoved = 4'000'000'000;

/// The colour of a change and of all that it replaces; nothing where that is not one, or hangs on
/// the change that ends where it begins.
std::optional<Colour> ColourOf(const TextStore& store, const TextChange& change, Position end) {
  const Colour colour = store.InheritedColour(change.at, change.length);
  if (change.length == 0) return change.at == end ? std::nullopt : std::optional(colour);
  return store.UniformColour(change.at, change.length) == colour ? std::optional(colour)
                                                                 : std::nullopt;
}

/// A change gives the same when what stands before and behind it in its colour is replaced by
/// itself. So those that stand in text of one colour become one.
std::vector<TextChange> JoinedByColour(const TextStore& store, std::vector<TextChange> changes) {
  std::vector<TextChange> joined;
  std::optional<Colour> colour;  // of the last one
  Position end = kNotFound;      // of the last one
  for (TextChange& change : changes) {
    const Position length = change.at + change.length - end;
    const bool same = colour && (length == 0 ? !joined.back().inserted.empty()
                                             : store.UniformColour(end, length) == colour);
    if (same) {
      TextChange& last = joined.back();
      last.inserted += store.Bytes().substr(static_cast<std::size_t>(end),
                                            static_cast<std::size_t>(change.at - end));
      last.inserted += change.inserted;
      last.length += length;
      end += length;
    } else {
      colour = ColourOf(store, change, end);
      end = change.at + change.length;
      joined.push_back(std::move(change));
    }
  }
  return joined;
}

/// All in one replacement, with the colours painted again. To take it back leaves one colour.
void ReplaceAsOne(RichTextBox& editor, const std::vector<TextChange>& changes) {
  const TextStore& store = editor.Store();
  TextChange whole{changes.front().at, 0, {}};
  std::vector<ColourRun> runs;
  Position end = whole.at;
  const auto paint = [&](Position length, Colour colour) {
    runs.push_back({whole.at + std::ssize(whole.inserted), length, colour});
  };
  for (const TextChange& change : changes) {
    for (ColourRun run : store.Runs(end, change.at - end)) {
      paint(run.length, run.colour);
      whole.inserted += store.Bytes().substr(static_cast<std::size_t>(run.start),
                                             static_cast<std::size_t>(run.length));
    }
    paint(std::ssize(change.inserted), store.InheritedColour(change.at, change.length));
    whole.inserted += change.inserted;
    end = change.at + change.length;
  }
  editor.EditByHand(whole.at, end - whole.at, whole.inserted);
  for (const ColourRun& run : runs) editor.Store().Paint(run.start, run.length, run.colour);
  editor.Change.Raise();
}

Position CaretBehind(const std::vector<TextChange>& changes, Position caret) {
  Position moved = caret;
  for (const TextChange& change : changes) {
    if (change.at >= caret) break;
    const Position end = change.at + change.length;
    moved += std::ssize(change.inserted) - (std::min(end, caret) - change.at);
  }
  return moved;
}

}  // namespace

std::vector<TextChange> ChangesOf(const SearchPattern& pattern, SearchedText& text,
                                  const std::vector<TextMatch>& matches,
                                  const Replacement& replacement, Position most) {
  std::vector<TextChange> changes;
  changes.reserve(matches.size());
  Position length = text.Length();
  const bool groups = replacement.HasGroups();
  for (const TextMatch& match : matches) {
    const auto places = groups ? pattern.GroupsOf(text, match) : std::vector<TextMatch>();
    changes.push_back({match.start, match.length, replacement.For(text.Bytes(), places)});
    length += std::ssize(changes.back().inserted) - match.length;
    if (length <= most) continue;
    throw RuntimeError(
        ReplaceTexts::tr("The text would have more than 512 MiB, which the editor cannot show.")
            .toStdString());
  }
  return changes;
}

void MakeChanges(RichTextBox& editor, std::vector<TextChange> changes) {
  if (changes.empty()) return;
  const Position caret = CaretBehind(changes, editor.SelStart());
  changes = JoinedByColour(editor.Store(), std::move(changes));
  {
    const RichTextBox::Gesture step(editor, false);
    if (std::ssize(changes) > kMostMoved / (editor.Length() + 1)) {
      ReplaceAsOne(editor, changes);
    } else {
      Position grown = 0;
      for (const TextChange& change : changes) {
        editor.EditByHand(change.at + grown, change.length, change.inserted);
        grown += std::ssize(change.inserted) - change.length;
      }
    }
  }
  editor.SelectByHand(caret, 0);
}

}  // namespace tessel
