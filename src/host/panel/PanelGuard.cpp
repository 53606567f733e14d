#include "host/panel/PanelGuard.h"

#include <string>

#include "base/ScopeGuard.h"
#include "language/SettingLines.h"

namespace tessel {
namespace {

constexpr std::size_t kMostQuoted = 60;

bool Belongs(PanelWrite write, const RichTextBox& editor) {
  const language::Range selected{editor.SelStart(), editor.SelEnd()};
  switch (write) {
    case PanelWrite::kValue:
    case PanelWrite::kYesNo:
      return LiesInDefineValue(language::Script(editor.Bytes()), selected);
    case PanelWrite::kLevel:
      return LiesInLevel(language::Script(editor.Bytes()), selected);
    case PanelWrite::kWord:
      return editor.SelLength() == 0 || !editor.HideSelection();
  }
  return false;
}

/// The line's fault, as a clause.
const char* WhyNot(PanelWrite write) {
  switch (write) {
    case PanelWrite::kValue:
    case PanelWrite::kYesNo:
      return "which is no define";
    case PanelWrite::kLevel:
      return "which is no definelevelname";
    case PanelWrite::kWord:
      break;
  }
  return "where you do not see it selected";
}

/// The beginning of a text in quotes.
std::string Quoted(std::string_view text) {
  const std::string_view shown = text.substr(0, text.find_first_of("\r\n")).substr(0, kMostQuoted);
  return '"' + std::string(shown) + (shown.size() < text.size() ? "...\"" : "\"");
}

std::string Question(PanelWrite write, std::string_view text, const RichTextBox& editor) {
  const Position line = language::Script(editor.Bytes()).PlaceOf(editor.SelStart()).line;
  if (editor.SelLength() == 0) {
    return "Nothing is selected: " + Quoted(text) + " would be inserted into line " +
           std::to_string(line) + ".\nInsert it?";
  }
  return Quoted(text) + " would replace " + Quoted(editor.SelBytes()) + " in line " +
         std::to_string(line) + ", " + WhyNot(write) + ".\nReplace it?";
}

}  // namespace

void PanelGuard::Watch(ucTessel& tessel) {
  documents_ = &tessel.OpenDocuments();
  subscriptions_ = {tessel.CommandEnded.Connect([this] { OnCommandEnded(); })};
}

bool PanelGuard::MayWrite(PanelWrite write, std::string_view text) {
  const RichTextBox& editor = documents_->CurrentEditor();
  if (Belongs(write, editor)) return true;
  neededInCommand_ = true;
  const Slot slot = documents_->Current().Place();
  const language::Script script(editor.Bytes());
  const Position line = script.PlaceOf(editor.SelStart()).line;
  const bool known = answer_ && answer_->slot == slot && answer_->line == line &&
                     editor.SelEnd() <= script.Line(line).end;
  if (!known) answer_ = {slot, line, Ask(write, text)};
  return answer_->yes;
}

bool PanelGuard::Ask(PanelWrite write, std::string_view text) {
  Asking.Raise(true);
  const ScopeGuard answered([this] { Asking.Raise(false); });
  return messages_.Show(Question(write, text, documents_->CurrentEditor()),
                        MessageIcon::kExclamation, kProgramTitle,
                        MessageButtons::kNoYes) == MessageAnswer::kYes;
}

void PanelGuard::OnCommandEnded() {
  if (!neededInCommand_) answer_.reset();
  neededInCommand_ = false;
}

}  // namespace tessel
