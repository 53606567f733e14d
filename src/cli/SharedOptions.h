// Options that several subcommands have. Only for what declares options: it needs the parser.
#pragma once

#include <CLI/App.hpp>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "cli/files/Batch.h"
#include "cli/files/Output.h"

namespace tessel::cli {

/// Refuses an empty value.
void TakeFileName(CLI::Option& option);
/// Takes one of the words in any case, as it is written in the list.
void TakeOneOf(CLI::Option& option, const std::vector<std::string>& words);
/// Makes an option's value the single-byte text of what the user typed; refuses what a CON file
/// cannot hold.
void TakeDocumentText(CLI::Option& option);
/// The single-byte text of what the user typed. A ParseError with that name when there is none.
std::string DocumentTextOf(const std::string& typed, const std::string& name);

/// FILE..., what a command works on.
void AddFiles(CLI::App& command, std::vector<std::string>& files);
/// "-o FILE" and "--force".
CLI::Option* AddOutput(CLI::App& command, Destination& destination);
/// "--json" or "--tsv".
void AddFormat(CLI::App& command, Format& format);
/// "--line NUMBER".
void AddLine(CLI::App& command, std::optional<std::int64_t>& line);
/// Where the result goes, and what is said about it.
void AddEdit(CLI::App& command, EditArguments& edit);

/// A ParseError for files, or for a place of the result, that do not go together.
void CheckFiles(const CLI::App& command, const std::vector<std::string>& files);
void CheckEdit(const CLI::App& command, const EditArguments& edit);

}  // namespace tessel::cli
