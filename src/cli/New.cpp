#include "cli/Subcommands.h"
#include "cli/look/DocumentSession.h"

namespace tessel::cli {

bool StartNew(const NewArguments& arguments) {
  DocumentSession session;
  session.New(arguments.code);
  WriteResult(session.Editor().Bytes(), arguments.destination, {});
  return true;
}

}  // namespace tessel::cli
