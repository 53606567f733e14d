#include "host/panel/PanelGuard.h"

#include <QCoreApplication>
#include <string>
#include <utility>

#include "base/ScopeGuard.h"
#include "language/SettingLines.h"
#include "qt/base/QtText.h"

namespace tessel {
namespace {

class PanelQuestions {
  Q_DECLARE_TR_FUNCTIONS(PanelGuard)
};

constexpr std::size_t kMostQuoted = 60;

/// What is asked where something is selected: %1 is the new text, %2 the old one, %3 the line.
QString QuestionOf(PanelWrite write) {
  switch (write) {
    case PanelWrite::kValue:
    case PanelWrite::kYesNo:
      return PanelQuestions::tr("%1 would replace %2 in line %3, which is no define.\nReplace it?");
    case PanelWrite::kLevel:
      return PanelQuestions::tr(
          "%1 would replace %2 in line %3, which is no definelevelname.\nReplace it?");
    case PanelWrite::kWord:
      break;
  }
  return PanelQuestions::tr(
      "%1 would replace %2 in line %3, where you do not see it selected.\nReplace it?");
}

/// The beginning of a text in quotes.
QString Quoted(std::string_view text) {
  const std::string_view shown = text.substr(0, text.find_first_of("\r\n")).substr(0, kMostQuoted);
  return '"' + ShownText(shown) + (shown.size() < text.size() ? "...\"" : "\"");
}

QString Question(PanelWrite write, std::string_view text, const RichTextBox& editor,
                 Position place) {
  const QString line = QString::number(place);
  if (editor.SelLength() > 0) {
    return QuestionOf(write).arg(Quoted(text), Quoted(editor.SelBytes()), line);
  }
  return PanelQuestions::tr("Nothing is selected: %1 would be inserted into line %2.\nInsert it?")
      .arg(Quoted(text), line);
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
  return messages_.Show(Question(write, text, Editor(), line).toStdString(),
                        MessageIcon::kExclamation, kProgramTitle,
                        MessageButtons::kNoYes) == MessageAnswer::kYes;
}

void PanelGuard::OnCommandEnded() {
  if (!neededInCommand_) answer_.reset();
  neededInCommand_ = false;
}

}  // namespace tessel
