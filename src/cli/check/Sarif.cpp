#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

#include "check/rules/Rules.h"
#include "cli/check/CheckedFiles.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

using Json = nlohmann::ordered_json;
using check::Rule;

constexpr const char* kSchema =
    "https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/sarif-schema-2.1.0.json";

bool StandsInUri(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("-._~/").find(c) != std::string_view::npos;
}

/// A file's name, which is any bytes, as a URI reference.
std::string UriOf(std::string_view name) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string uri;
  for (const char c : name) {
    const auto byte = static_cast<unsigned char>(c);
    if (StandsInUri(c)) {
      uri += c;
    } else {
      uri += {'%', kDigits[byte / 16], kDigits[byte % 16]};
    }
  }
  return uri;
}

Json TextOf(std::string_view text) { return {{"text", std::string(text)}}; }

Json RuleAsJson(const Rule& rule) {
  return {{"id", std::string(rule.id)},
          {"shortDescription", TextOf(rule.summary)},
          {"fullDescription", TextOf(rule.explanation)},
          {"defaultConfiguration", {{"level", NameOf(rule.severity)}}}};
}

Json RegionAsJson(const Region& region) {
  return {{"startLine", region.begin.line},
          {"startColumn", region.begin.column},
          {"endLine", region.end.line},
          {"endColumn", region.end.column}};
}

Json FixAsJson(const check::Fix& fix, const Json& artifact, const check::LineIndex& lines) {
  Json replacements = Json::array();
  for (const check::Replacement& edit : fix.edits) {
    replacements.push_back({{"deletedRegion", RegionAsJson(RegionOf(lines, edit.range))},
                            {"insertedContent", TextOf(ToUtf8(edit.text))}});
  }
  const Json change = {{"artifactLocation", artifact}, {"replacements", replacements}};
  return {{"description", TextOf(fix.what)}, {"artifactChanges", Json::array({change})}};
}

std::size_t IndexOf(const Rule* rule) {
  const auto rules = check::AllRules();
  return static_cast<std::size_t>(std::ranges::find(rules, rule) - rules.begin());
}

Json FindingAsJson(const check::Finding& finding, const Json& artifact,
                   const check::LineIndex& lines) {
  const Json place = {
      {"physicalLocation",
       {{"artifactLocation", artifact}, {"region", RegionAsJson(RegionOf(lines, finding.range))}}}};
  Json result = {{"ruleId", std::string(finding.rule->id)},
                 {"ruleIndex", IndexOf(finding.rule)},
                 {"level", NameOf(finding.rule->severity)},
                 {"message", TextOf(finding.text)},
                 {"locations", Json::array({place})}};
  if (finding.fix) result["fixes"] = Json::array({FixAsJson(*finding.fix, artifact, lines)});
  return result;
}

}  // namespace

std::string FindingsAsSarif(const std::vector<CheckedFile>& files, const std::string& version) {
  Json rules = Json::array();
  for (const Rule* rule : check::AllRules()) rules.push_back(RuleAsJson(*rule));
  Json results = Json::array();
  for (const CheckedFile& file : files) {
    const check::LineIndex lines(file.bytes);
    const Json artifact = {{"uri", UriOf(file.name)}};
    for (const check::Finding& finding : file.findings) {
      results.push_back(FindingAsJson(finding, artifact, lines));
    }
  }
  const Json driver = {{"name", "tessel"}, {"version", version}, {"rules", rules}};
  const Json run = {
      {"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", results}};
  const Json log = {{"$schema", kSchema}, {"version", "2.1.0"}, {"runs", Json::array({run})}};
  return JsonForTerminal(log.dump(2, ' ', false, Json::error_handler_t::replace)) + "\n";
}

}  // namespace tessel::cli
