// What a check finds, as the protocol says it.
#pragma once

#include "lsp/features/Session.h"

namespace tessel::lsp {

/// What the client is told of a finding.
Json DiagnosticOf(const Session& session, const Document& document, const check::Finding& finding);

/// The same of all findings in a document, and of its characters that a CON file cannot hold. What
/// is found at such a character waits until it has gone: the byte in its place is nobody's.
Json DiagnosticsOf(const Session& session, const Document& document,
                   const check::Findings& findings);

}  // namespace tessel::lsp
