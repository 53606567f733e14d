#include "cli/CommonOptions.h"

#include "cli/SafeText.h"

namespace tessel::cli {

void AddFile(CLI::App& command, std::string& file) {
  command.add_option("FILE", file, "the CON file")->required();
}

CLI::Option* AddOutput(CLI::App& command, std::string& file) {
  CLI::Option* option = command.add_option("-o,--output", file, "write the result to this file");
  TakeFileName(*option);
  return option;
}

void AddDestination(CLI::App& command, Destination& destination) {
  auto* output = AddOutput(command, destination.file);
  command.add_flag("--in-place", destination.inPlace, "write the result over the file itself")
      ->excludes(output);
}

void TakeFileName(CLI::Option& option) {
  const auto refuseEmpty = [](const std::string& name) {
    return name.empty() ? std::string("the name of the file is empty") : std::string();
  };
  option.type_name("FILE")->check(refuseEmpty);
}

void TakeDocumentText(CLI::Option& option) {
  const auto convert = [](std::string& text) -> std::string {
    const auto bytes = FromTerminal(text);
    if (!bytes) return "\"" + text + "\" has a character that a CON file cannot hold";
    text = *bytes;
    return {};
  };
  option.transform(CLI::Validator(convert, ""));
}

}  // namespace tessel::cli
