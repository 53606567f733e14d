#include "check/Check.h"

#include <algorithm>
#include <tuple>

#include "check/facts/SwitchComments.h"
#include "check/rules/Rules.h"

namespace tessel::check {
namespace {

bool Holds(const std::vector<const Rule*>& rules, const Rule* rule) {
  return std::ranges::find(rules, rule) != rules.end();
}

bool IsApplied(const Options& options, const Rule* rule) {
  return (options.rules.empty() || Holds(options.rules, rule)) && !Holds(options.off, rule);
}

bool IsAbout(const Switch& each, const FileFacts& file, const Finding& finding) {
  return (each.rule.IsEmpty() || file.Text(each.rule) == finding.rule->id) &&
         each.reach.begin <= finding.range.begin && finding.range.begin <= each.reach.end;
}

bool IsSwitchedOff(const std::vector<Switch>& switches, const FileFacts& file,
                   const Finding& finding) {
  bool off = false;
  for (const Switch& each : switches) {
    if (IsAbout(each, file, finding)) off = each.off;
  }
  return off;
}

void LeaveOutWhatIsSwitchedOff(const Mod& mod, Findings& findings) {
  for (std::size_t i = 0; i < mod.Files().size() && !findings.empty(); ++i) {
    const FileFacts& file = mod.Files()[i];
    const std::vector<Switch> switches = SwitchesIn(file);
    if (switches.empty()) continue;
    std::erase_if(findings, [&](const Finding& finding) {
      return finding.file == i && IsSwitchedOff(switches, file, finding);
    });
  }
}

/// Takes the first line off the text.
std::string_view TakeLine(std::string_view& text) {
  const std::string_view line = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(line.size() + 1, text.size()));
  return line;
}

}  // namespace

Findings Check(std::span<const Source> sources, const Knowledge& knowledge,
               const Options& options) {
  const Mod mod(sources, knowledge);
  Findings findings;
  for (const Rule* rule : AllRules()) {
    if (!IsApplied(options, rule)) continue;
    const std::size_t before = findings.size();
    rule->find(mod, findings);
    for (std::size_t i = before; i < findings.size(); ++i) findings[i].rule = rule;
  }
  LeaveOutWhatIsSwitchedOff(mod, findings);
  std::ranges::stable_sort(findings, {}, [](const Finding& finding) {
    return std::tuple(finding.file, finding.range.begin);
  });
  return findings;
}

std::vector<Source> ExampleFiles(std::string_view example) {
  constexpr std::string_view kBefore = "==> ", kBehind = " <==";
  if (!example.starts_with(kBefore)) return {{"USER.CON", example}};
  std::vector<Source> files;
  while (!example.empty()) {
    const std::string_view line = TakeLine(example);
    if (line.starts_with(kBefore) && line.ends_with(kBehind)) {
      const std::size_t length = line.size() - kBefore.size() - kBehind.size();
      files.push_back({line.substr(kBefore.size(), length), {example.data(), 0}});
    } else {
      const char* const start = files.back().text.data();
      files.back().text = {start, static_cast<std::size_t>(example.data() - start)};
    }
  }
  return files;
}

}  // namespace tessel::check
