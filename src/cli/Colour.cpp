#include <iostream>

#include "cli/Subcommands.h"
#include "cli/files/Input.h"
#include "cli/look/DocumentSession.h"
#include "cli/report/Json.h"
#include "cli/report/Terminal.h"
#include "text/SafeText.h"

namespace tessel::cli {
namespace {

struct Rgb {
  unsigned red, green, blue;
};

Rgb ToRgb(Colour colour) { return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF}; }

void PrintPlain(const RichTextBox& editor) { std::cout << DocumentForTerminal(editor.Bytes()); }

void PrintAnsi(const RichTextBox& editor) {
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    const std::string text = DocumentForTerminal(editor.Bytes().substr(run.start, run.length));
    if (run.colour == kBlack) {
      std::cout << text;
      continue;
    }
    const Rgb c = ToRgb(run.colour);
    std::cout << "\x1b[38;2;" << c.red << ';' << c.green << ';' << c.blue << 'm' << text
              << "\x1b[0m";
  }
}

void PrintHtml(const RichTextBox& editor) {
  std::cout << "<!DOCTYPE html>\n<meta charset=\"utf-8\">\n<pre>";
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    const std::string text = ForHtml(editor.Bytes().substr(run.start, run.length));
    if (run.colour == kBlack) {
      std::cout << text;
      continue;
    }
    const Rgb c = ToRgb(run.colour);
    std::cout << "<span style=\"color:rgb(" << c.red << ',' << c.green << ',' << c.blue << ")\">"
              << text << "</span>";
  }
  std::cout << "</pre>\n";
}

void PrintJson(const RichTextBox& editor) {
  std::vector<std::array<std::int64_t, 3>> runs;
  for (const ColourRun& run : editor.Store().Runs(0, editor.Length())) {
    if (run.colour != kBlack) runs.push_back({run.start, run.length, run.colour});
  }
  std::cout << JsonText(runs) << '\n';
}

}  // namespace

bool PrintInColours(const ColourArguments& arguments) {
  DocumentSession session;
  session.Show(ReadInput(arguments.file));
  session.Run([&] { session.Controls().tbToolBar.Press("Colorize"); });
  const RichTextBox& editor = session.Editor();
  if (arguments.format == "json") {
    PrintJson(editor);
  } else if (arguments.format == "html") {
    PrintHtml(editor);
  } else if (arguments.format == "ansi" || TerminalWantsColour()) {
    PrintAnsi(editor);
  } else {
    PrintPlain(editor);
  }
  return true;
}

}  // namespace tessel::cli
