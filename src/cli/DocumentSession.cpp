#include "cli/DocumentSession.h"

#include <filesystem>

#include "posix/HostDirectory.h"

namespace tessel::cli {

DocumentSession::DocumentSession(std::uint32_t seed)
    : random_(seed),
      services_{.messages = messages_,
                .fileDialogs = fileDialogs_,
                .forms = forms_,
                .clipboard = clipboard_,
                .settings = settings_,
                .pointer = pointer_,
                .files = files_,
                .random = random_,
                .focus = focus_,
                .loop = loop_,
                .hostDirectory = DefaultHostDirectory()},
      control_(services_) {
  control_.Initialize();
  Controls().tbToolBar.SetPressed("Colorize", false);
}

bool DocumentSession::Open(const std::string& path) {
  // The control takes an empty path for "ask": there is nobody to ask.
  if (path.empty()) {
    Complain("File  not found.");
    return false;
  }
  std::error_code error;
  if (std::filesystem::is_directory(path, error)) {
    Complain("Cannot open " + path + ": it is a directory.");
    return false;
  }
  const std::filesystem::path whole = std::filesystem::absolute(path, error);
  return Run([&] { control_.OpenFile(error ? path : whole.string()); });
}

bool DocumentSession::New(const std::string& code) {
  return Run([&] {
    const auto& menu = Controls().tbToolBar.Find("FileNew")->menu;
    for (std::size_t i = 0; i < menu.size(); ++i) {
      if (menu[i].key == code && !code.empty()) {
        return Controls().tbToolBar.PressMenuItem("FileNew", static_cast<int>(i) + 1);
      }
    }
  });
}

bool DocumentSession::Run(const std::function<void()>& command) {
  command();
  return !messages_.Shown();
}

RichTextBox& DocumentSession::Editor() { return control_.OpenDocuments().CurrentEditor(); }

}  // namespace tessel::cli
