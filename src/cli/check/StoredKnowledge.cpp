#include "cli/check/StoredKnowledge.h"

#include "base/RuntimeError.h"
#include "cli/files/WordStore.h"
#include "documents/Templates.h"
#include "posix/HostDirectory.h"
#include "posix/PosixFiles.h"

namespace tessel::cli {
namespace {

std::string TemplateText(const char* code) try {
  return PosixFiles().Read(DefaultHostDirectory() + "/" + std::string(TemplateFile(code)));
} catch (const RuntimeError&) {
  return {};
}

}  // namespace

StoredKnowledge ReadKnowledge(const std::string& store) {
  return {StoredOrStarterWords(store), TemplateText("13DU"), TemplateText("15AU")};
}

}  // namespace tessel::cli
