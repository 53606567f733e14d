#include "host/panel/PanelGuard.h"

#include <string>
#include <utility>

#include "base/ScopeGuard.h"
#include "language/SettingLines.h"

namespace tessel {
namespace {

constexpr std::size_t kMostQuoted = 60;

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

std::string Question(PanelWrite write, std::string_view text, const RichTextBox& editor,
                     Position line) {
  if (editor.SelLength() == 0) {
    return "Nothing is selected: " + Quoted(text) + " would be inserted into line " +
           std::to_string(line) + ".\nInsert it?";
  }
  return Quoted(text) + " would replace " + Quoted(editor.SelBytes()) + " in line " +
         std::to_string(line) + ", " + WhyNot(write) + ".\nReplace it?";
}

}  // namespace

void PanelGuard::Watch(ucTessel& tessel, ScriptOf scriptOf) {
  documents_ = &tessel.OpenDocuments();
  scriptOf_ = std::move(scriptOf);
  subscriptions_ = {tessel.CommandEnded.Connect([this] { OnCommandEnded(); })};
}

bool PanelGuard::Belongs(PanelWrite write) const {
  const language::Range selected{Editor().SelStart(), Editor().SelEnd()};
  switch (write) {
    case PanelWrite::kValue:
    case PanelWrite::kYesNo:
      return LiesInDefineValue(Script(), selected);
    case PanelWrite::kLevel:
      return LiesInLevel(Script(), selected);
    case PanelWrite::kWord:
      return Editor().SelLength() == 0 || !Editor().HideSelection();
  }
  return false;
}

bool PanelGuard::MayWrite(PanelWrite write, std::string_view text) {
  if (Belongs(write)) return true;
  neededInCommand_ = true;
  const Slot slot = documents_->Current().Place();
  const Position line = Script().PlaceOf(Editor().SelStart()).line;
  const bool known = answer_ && answer_->slot == slot && answer_->line == line &&
                     Editor().SelEnd() <= Script().Line(line).end;
  if (!known) answer_ = {slot, line, Ask(write, text, line)};
  return answer_->yes;
}

bool PanelGuard::Ask(PanelWrite write, std::string_view text, Position line) {
  Asking.Raise(true);
  const ScopeGuard answered([this] { Asking.Raise(false); });
  return messages_.Show(Question(write, text, Editor(), line), MessageIcon::kExclamation,
                        kProgramTitle, MessageButtons::kNoYes) == MessageAnswer::kYes;
}

void PanelGuard::OnCommandEnded() {
  if (!neededInCommand_) answer_.reset();
  neededInCommand_ = false;
}

}  // namespace tessel
