#include "converter/Converter.h"

#include <optional>
#include <string>
#include <utility>

#include "base/ScopeGuard.h"
#include "converter/EditPrimitives.h"
#include "converter/modConVersion.h"
#include "services/Hourglass.h"
#include "surface/Parked.h"
#include "text/TextSearch.h"

namespace tessel {
namespace {

constexpr const char* kAlreadyConverted =
    "This con appears to already be version 1.4/1.5 compatible.";
constexpr const char* kNoUserCon = "This does not appear to be a user.con file.";

/// Why the text is not to be converted, or null.
const char* Refusal(RichTextBox& editor) {
  if (editor.Find(kOnlyInConverted, 0) != kNotFound) return kAlreadyConverted;
  if (editor.Find(kOnlyInUserFiles, 0) == kNotFound) return kNoUserCon;
  return nullptr;
}

std::vector<StepResult> Convert(RichTextBox& editor) {
  editor.SetSelStart(0);
  std::vector<StepResult> results = ApplyVersionEdits(editor);
  editor.SetSelStart(editor.Length());
  WriteRed(editor, std::string(kLineBreak).append(NewSoundDefinitions()));
  editor.SetSelStart(0);
  editor.EmptyUndoBuffer();
  return results;
}

bool Holds(std::string_view text, std::string_view word) {
  return FindText(text, word, 0, std::ssize(text), kFindDefault) != kNotFound;
}

}  // namespace

bool CanBeConverted(std::string_view text) {
  return !Holds(text, kOnlyInConverted) && Holds(text, kOnlyInUserFiles);
}

std::vector<StepResult> ConvertUserCon(RichTextBox& editor, ScreenPointer& pointer,
                                       MessageBox& messages, const std::function<void()>& converted,
                                       AfterFailure afterFailure) {
  const Hourglass hourglass(pointer);
  const ScopeGuard show([&] { editor.SetVisible(true); });
  const Position savedStart = editor.SelStart();
  const Position savedLength = editor.SelLength();

  if (const char* refusal = Refusal(editor)) {
    messages.Show(refusal, MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
    editor.SetSelStart(savedStart);
    return {};
  }

  std::optional<RichTextBox::Snapshot> before;
  if (afterFailure == AfterFailure::kTextFromBefore) {
    before = editor.TakeSnapshot();
    before->selStart = savedStart;
    before->selLength = savedLength;
  }
  std::vector<StepResult> results;
  {
    const Parked parked(editor, Parked::Left::kInFront);
    try {
      results = Convert(editor);
    } catch (...) {
      if (before) editor.Restore(std::move(*before));
      throw;
    }
  }
  converted();
  return results;
}

}  // namespace tessel
