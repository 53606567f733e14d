#include "host/problems/Problems.h"

#include <QStatusBar>
#include <algorithm>

#include "host/problems/ProblemCount.h"
#include "host/problems/ProblemFix.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "services/Paths.h"

namespace tessel {

Problems::Problems(QMainWindow& window, const Uses& uses)
    : QObject(&uses.control),
      uses_(uses),
      check_({uses.control, uses.script.Scripts(), uses.preferences, uses.settings,
              uses.hostDirectory},
             problems_, nullptr),
      marks_(uses.control, problems_, nullptr),
      dock_(*new ProblemDock(
          problems_, [this](Slot slot) { return NameOf(slot); }, window)),
      count_(new ProblemCount(*window.statusBar())) {
  ConnectDock();
  connect(&check_, &LiveCheck::said, this, &Problems::said);
  connect(&check_, &LiveCheck::nowChanged, this,
          [this] { dock_.Pane().ShowWhyNotLive(WhyNotLive()); });
  connect(count_, &ProblemCount::clicked, this, &Problems::ShowAll);
  replaced_ = problems_.Replaced.Connect([this] {
    dock_.Pane().Update();
    count_->Show(problems_);
  });
}

void Problems::ConnectDock() {
  const ProblemPane& pane = dock_.Pane();
  connect(&pane, &ProblemPane::chosen, this, &Problems::GoTo);
  connect(&pane, &ProblemPane::fixWanted, this, &Problems::Fix);
  connect(&pane, &ProblemPane::checkWanted, &check_, &LiveCheck::CheckNow);
  connect(&pane, &ProblemPane::left, this,
          [this] { uses_.control.CurrentEditorView()->setFocus(Qt::OtherFocusReason); });
  uses_.menu.OnToggle(WindowCommand::kProblems, false, [this](bool on) { dock_.SetShown(on); });
  QAction& action = uses_.menu.Action(WindowCommand::kProblems);
  connect(&action, &QAction::triggered, this, [this](bool on) {
    if (on) dock_.Pane().FocusList();
  });
  connect(&dock_, &ProblemDock::shownChanged, &action, &QAction::setChecked);
}

std::vector<QWidget*> Problems::Bars() { return {&dock_.Pane(), count_}; }

void Problems::ShowAll() {
  dock_.SetShown(true);
  dock_.Pane().FocusList();
}

void Problems::GoTo(const Problem& problem) {
  const Position length = uses_.control.Tessel().OpenDocuments().At(problem.slot).Editor().Length();
  const language::Range range = problems_.RangeOf(problem);
  uses_.script.GoTo(problem.slot, {std::min(range.begin, length), std::min(range.end, length)});
}

// The list may be another one when the edit is done.
void Problems::Fix(const Problem& problem) {
  const QString done = tr("Fixed: %1").arg(QString::fromStdString(problem.finding.fix->what));
  const QString refusal = ApplyFix(uses_.control, problems_, problem);
  emit said(refusal.isEmpty() ? done : refusal);
  if (refusal.isEmpty()) check_.CheckNow();
}

QString Problems::NameOf(Slot slot) const {
  const Document document = uses_.control.Tessel().OpenDocuments().At(slot);
  const std::string path = document.Path();
  return ShownName(path.empty() ? document.Name() : NameOfPath(path, '/'));
}

QString Problems::WhyNotLive() const {
  switch (check_.Now()) {
    case LiveChecking::kOff:
      return tr("The preferences say that nothing is checked while you type.");
    case LiveChecking::kTooLong:
      return tr("The open texts have more than %L1 bytes together and are not checked while you "
                "type.")
          .arg(LiveCheck::kMostBytes);
    default:
      return {};
  }
}

}  // namespace tessel
