#include "cli/DocumentSession.h"
#include "cli/Subcommands.h"

namespace tessel::cli {

bool StartNew(const NewArguments& arguments) {
  DocumentSession session;
  return session.New(arguments.code) &&
         WriteResult(session.Editor().Bytes(), arguments.destination, {});
}

}  // namespace tessel::cli
