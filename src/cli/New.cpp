#include "cli/DocumentSession.h"
#include "cli/Subcommands.h"

namespace tessel::cli {

bool StartNew(const NewArguments& arguments) {
  DocumentSession session;
  session.New(arguments.code);
  WriteResult(session.Editor().Bytes(), arguments.destination, {});
  return true;
}

}  // namespace tessel::cli
