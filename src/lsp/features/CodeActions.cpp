// What can be done at a place: fixes of what a check has found, other values, the conversion.
#include <cctype>

#include "check/facts/Rule.h"
#include "converter/Converter.h"
#include "lsp/features/Diagnostics.h"
#include "lsp/features/Features.h"
#include "lsp/features/Values.h"
#include "text/SafeText.h"

namespace tessel::lsp {
namespace {

constexpr std::string_view kFixKind = "quickfix", kRewriteKind = "refactor.rewrite";

/// The client may want some kinds alone: "refactor" has "refactor.rewrite" in it.
bool Wants(const Json& params, std::string_view kind) {
  const Json* context = OptionalMember(params, "context");
  const Json* only = context == nullptr ? nullptr : OptionalMember(*context, "only");
  if (only == nullptr || !only->is_array() || only->empty()) return true;
  for (const Json& each : *only) {
    if (!each.is_string()) continue;
    const std::string& wanted = each.get_ref<const std::string&>();
    const bool begins = kind.starts_with(wanted);
    if (begins && (kind.size() == wanted.size() || wanted.empty() || kind[wanted.size()] == '.')) {
      return true;
    }
  }
  return false;
}

std::string Capitalized(std::string text) {
  if (!text.empty()) text[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[0])));
  return text;
}

bool Touch(language::Range a, language::Range b) { return a.begin <= b.end && b.begin <= a.end; }

Json FixAction(const Session& session, const Document& document, const check::Finding& finding) {
  FileEdits file = {&document, {}};
  for (const check::Replacement& edit : finding.fix->edits) {
    file.edits.push_back({edit.range, ToUtf8(edit.text)});
  }
  return {{"title", Capitalized(finding.fix->what) + " (" + std::string(finding.rule->id) + ")"},
          {"kind", kFixKind},
          {"isPreferred", true},
          {"diagnostics", {DiagnosticOf(session, document, finding)}},
          {"edit", WorkspaceEdit(session, {file})}};
}

void AddFixes(Session& session, const Document& document, language::Range range, Json& actions) {
  for (const check::Finding& finding : session.FindingsIn(document)) {
    if (!finding.fix || !Touch(finding.range, range)) continue;
    if (document.ForeignersIn(finding.range).empty()) {
      actions.push_back(FixAction(session, document, finding));
    }
  }
}

void AddValues(const Session& session, const Document& document, language::Range range,
               Json& actions) {
  for (const OfferedValue& offered : ValuesFor(session, document, range.begin)) {
    const std::string why = offered.why.empty() ? "" : " (" + offered.why + ")";
    const FileEdits file = {&document, {offered.edit}};
    actions.push_back({{"title", "Set value of " + offered.name + " to " + offered.value + why},
                       {"kind", kRewriteKind},
                       {"edit", WorkspaceEdit(session, {file})}});
  }
}

void AddConversion(const Session& session, const Document& document, Json& actions) {
  if (!session.client.appliesEdits || !CanBeConverted(document.Bytes())) return;
  constexpr const char* kTitle = "Convert to 1.4/1.5";
  actions.push_back(
      {{"title", kTitle},
       {"kind", kRewriteKind},
       {"command",
        {{"title", kTitle}, {"command", kConvertCommand}, {"arguments", {document.Uri()}}}}});
}

}  // namespace

std::string CodeActions(Session& session, const Json& params) {
  const Document& document = DocumentIn(session, params);
  const language::Range range =
      RangeFrom(Member(params, "range"), document, session.client.encoding);
  Json actions = Json::array();
  if (Wants(params, kFixKind)) AddFixes(session, document, range, actions);
  if (Wants(params, kRewriteKind)) {
    AddValues(session, document, range, actions);
    AddConversion(session, document, actions);
  }
  return Dump(actions);
}

}  // namespace tessel::lsp
