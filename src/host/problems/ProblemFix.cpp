#include "host/problems/ProblemFix.h"

#include <QCoreApplication>
#include <utility>
#include <vector>

#include "host/find/ReplaceMatches.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

struct ProblemFix {
  Q_DECLARE_TR_FUNCTIONS(ProblemFix)
};

std::vector<TextChange> ChangesOfFix(const check::Fix& fix) {
  std::vector<TextChange> changes;
  changes.reserve(fix.edits.size());
  for (const check::Replacement& edit : fix.edits) {
    changes.push_back({edit.range.begin, edit.range.Length(), edit.text});
  }
  return changes;
}

}  // namespace

QString ApplyFix(TesselWidget& control, const ProblemList& problems, const Problem& problem) {
  ucTessel& tessel = control.Tessel();
  if (tessel.Running()) return ProblemFix::tr("Another command is still on its way.");
  const Document document = tessel.OpenDocuments().At(problem.slot);
  if (problems.RevisionOf(problem.slot) != document.Editor().Store().Revision()) {
    return ProblemFix::tr("The text has changed since it was checked; nothing is fixed.");
  }
  const Position begin = problem.finding.range.begin;
  std::vector<TextChange> changes = ChangesOfFix(*problem.finding.fix);
  tessel.Run([&] {
    if (document != tessel.OpenDocuments().Current()) {
      tessel.OpenDocuments().Select(document.Place());
    }
    document.Editor().SelectByHand(begin, 0);
  });
  const auto& reading = control.CurrentEditorView()->CurrentReading();
  if (reading) return reading->why;
  tessel.Run([&] { MakeChanges(document.Editor(), std::move(changes)); });
  return {};
}

}  // namespace tessel
