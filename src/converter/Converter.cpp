#include "converter/Converter.h"

#include <string>
#include <utility>

#include "converter/EditPrimitives.h"
#include "converter/modConVersion.h"
#include "documents/DocumentSlots.h"
#include "services/ScopeGuard.h"

namespace tessel {
namespace {

constexpr const char* kAlreadyConverted =
    "This con appears to already be version 1.4/1.5 compatible.";
constexpr const char* kNoUserCon = "This does not appear to be a user.con file.";

/// Why the text is not to be converted, or null.
const char* Refusal(RichTextBox& editor) {
  if (editor.Find("QSIZE", 0) != kNotFound) return kAlreadyConverted;
  if (editor.Find("definelevelname", 0) == kNotFound) return kNoUserCon;
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

}  // namespace

std::vector<StepResult> ConvertUserCon(HostedControls& controls, const Services& services) {
  const Hourglass hourglass(services.pointer);
  const int slot = CurrentDocIndex(controls);
  RichTextBox& editor = controls.rtbCon[slot];
  const ScopeGuard show([&] { editor.SetVisible(true); });
  const Position savedStart = editor.SelStart();
  const Position savedLength = editor.SelLength();

  if (const char* refusal = Refusal(editor)) {
    services.messages.Show(refusal, MessageIcon::kExclamation, kProgramTitle, MessageButtons::kOk);
    editor.SetSelStart(savedStart);
    return {};
  }

  RichTextBox::Snapshot before = editor.TakeSnapshot();
  before.selStart = savedStart;
  before.selLength = savedLength;
  editor.SetVisible(false);
  editor.SetLeft(kParkedLeft);
  try {
    std::vector<StepResult> results = Convert(editor);
    editor.SetLeft(0);
    MarkModified(controls, slot);
    return results;
  } catch (...) {
    editor.Restore(std::move(before));
    editor.SetLeft(0);
    throw;
  }
}

}  // namespace tessel
