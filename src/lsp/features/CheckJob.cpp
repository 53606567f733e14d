#include "lsp/features/CheckJob.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "lsp/features/Session.h"

namespace tessel::lsp {
namespace {

bool IsSame(const check::Finding& a, const check::Finding& b) {
  return a.range == b.range && a.rule == b.rule && a.text == b.text;
}

void AddNew(check::Finding finding, check::Findings& findings) {
  const auto isSame = [&](const check::Finding& each) { return IsSame(each, finding); };
  if (std::ranges::none_of(findings, isSame)) findings.push_back(std::move(finding));
}

}  // namespace

CheckJob::CheckJob(const std::vector<Documents>& mods) {
  mods_.reserve(mods.size());
  for (const Documents& mod : mods) {
    std::vector<std::size_t>& places = mods_.emplace_back();
    places.reserve(mod.size());
    for (const DocumentRef& document : mod) places.push_back(Add(document));
  }
}

std::size_t CheckJob::Add(const DocumentRef& document) {
  const auto found = std::ranges::find(files, document, &CheckedFile::document);
  const auto index = static_cast<std::size_t>(found - files.begin());
  if (found == files.end()) {
    files.push_back(
        {document, document->Revision(), document->IsOpen(), NameOf(*document), document->Bytes()});
  }
  return index;
}

std::vector<check::Findings> CheckJob::Run(const check::Knowledge& knowledge) const {
  std::vector<check::Findings> found(files.size());
  for (const std::vector<std::size_t>& mod : mods_) {
    std::vector<check::Source> sources;
    sources.reserve(mod.size());
    for (const std::size_t file : mod) sources.push_back({files[file].name, files[file].bytes});
    for (check::Finding& finding : check::Check(sources, knowledge)) {
      check::Findings& those = found[mod[finding.file]];
      if (mods_.size() == 1) {
        those.push_back(std::move(finding));
      } else {
        AddNew(std::move(finding), those);
      }
    }
  }
  for (check::Findings& those : found) {
    std::ranges::stable_sort(those, {},
                             [](const check::Finding& each) { return each.range.begin; });
  }
  return found;
}

}  // namespace tessel::lsp
