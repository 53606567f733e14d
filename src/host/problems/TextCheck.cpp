#include "host/problems/TextCheck.h"

#include <utility>

#include "check/Check.h"
#include "check/facts/LineIndex.h"

namespace tessel {

CheckedTexts Checked(const TextCheck& task) {
  std::vector<check::Source> sources;
  std::vector<check::LineIndex> lines;
  sources.reserve(task.texts.size());
  lines.reserve(task.texts.size());
  for (std::size_t i = 0; i < task.texts.size(); ++i) {
    sources.push_back({task.documents[i].name, task.texts[i]});
    lines.emplace_back(task.texts[i]);
  }
  check::Findings findings = check::Check(sources, {.words = task.words,
                                                    .olderTemplate = task.olderTemplate,
                                                    .newerTemplate = task.newerTemplate});
  CheckedTexts checked{task.documents, {}, findings.size() <= kMostProblems};
  if (!checked.complete) findings.resize(kMostProblems);
  checked.problems.reserve(findings.size());
  for (check::Finding& finding : findings) {
    const Position line = lines[finding.file].PlaceOf(finding.range.begin).line;
    checked.problems.push_back({task.documents[finding.file].slot, line, std::move(finding)});
  }
  return checked;
}

}  // namespace tessel
