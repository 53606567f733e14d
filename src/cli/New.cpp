#include "cli/CommonOptions.h"
#include "cli/DocumentSession.h"
#include "cli/Subcommands.h"
#include "documents/Templates.h"

namespace tessel::cli {

void AddNew(CLI::App& program, int& status) {
  struct Options {
    std::string code;
    Destination destination;
  };
  auto options = std::make_shared<Options>();
  std::vector<std::string> codes;
  codes.reserve(kTemplates.size());
  for (const Template& entry : kTemplates) codes.emplace_back(entry.code);

  CLI::App* command = program.add_subcommand("new", "Start a file from a template");
  command
      ->add_option("CODE", options->code, "13DU, 15AU (user), 13DD, 15AD (defs), 13DG, 15AG (game)")
      ->required()
      ->check(CLI::IsMember(codes));
  AddOutput(*command, options->destination.file);
  command->callback([options, &status] {
    DocumentSession session;
    if (!session.New(options->code) ||
        !WriteResult(session.Editor().Bytes(), options->destination, {})) {
      status = kFailed;
    }
  });
}

}  // namespace tessel::cli
