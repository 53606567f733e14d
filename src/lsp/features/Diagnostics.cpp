#include "lsp/features/Diagnostics.h"

#include "check/facts/Rule.h"

namespace tessel::lsp {
namespace {

constexpr const char* kSource = "tessel";
constexpr int kError = 1, kWarning = 2, kInformation = 3;

int SeverityOf(check::Severity severity) {
  switch (severity) {
    case check::Severity::kError:
      return kError;
    case check::Severity::kWarning:
      return kWarning;
    case check::Severity::kNote:
      return kInformation;
  }
  return kInformation;
}

Json ForeignerDiagnostic(const Session& session, const Document& document,
                         const Foreigner& foreigner) {
  const language::Range range = {foreigner.at, foreigner.at + 1};
  return {{"range", RangeAsJson(document, range, session.client.encoding)},
          {"severity", kError},
          {"source", kSource},
          {"code", "not-in-windows-1252"},
          {"message", "\"" + document.Utf8(range) +
                          "\" cannot be saved: a CON file holds Windows-1252, and that has no such "
                          "character"}};
}

}  // namespace

Json DiagnosticOf(const Session& session, const Document& document, const check::Finding& finding) {
  return {{"range", RangeAsJson(document, finding.range, session.client.encoding)},
          {"severity", SeverityOf(finding.rule->severity)},
          {"source", kSource},
          {"code", finding.rule->id},
          {"message", finding.text}};
}

Json DiagnosticsOf(const Session& session, const Document& document,
                   const check::Findings& findings) {
  Json diagnostics = Json::array();
  for (const Foreigner& foreigner : document.Foreigners()) {
    diagnostics.push_back(ForeignerDiagnostic(session, document, foreigner));
  }
  for (const check::Finding& finding : findings) {
    if (!document.ForeignersIn(finding.range).empty()) continue;
    diagnostics.push_back(DiagnosticOf(session, document, finding));
  }
  return diagnostics;
}

}  // namespace tessel::lsp
