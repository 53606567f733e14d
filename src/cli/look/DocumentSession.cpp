#include "cli/look/DocumentSession.h"

#include <utility>

#include "base/RuntimeError.h"
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

void DocumentSession::Show(std::string bytes) { Editor().SetText(std::move(bytes)); }

void DocumentSession::New(const std::string& code) {
  Run([&] {
    const auto& menu = Controls().tbToolBar.Find("FileNew")->menu;
    for (std::size_t i = 0; i < menu.size(); ++i) {
      if (menu[i].key == code && !code.empty()) {
        return Controls().tbToolBar.PressMenuItem("FileNew", static_cast<int>(i) + 1);
      }
    }
  });
}

void DocumentSession::Run(const std::function<void()>& command) {
  command();
  if (messages_.Heard()) throw RuntimeError(*messages_.Heard());
}

RichTextBox& DocumentSession::Editor() { return control_.OpenDocuments().CurrentEditor(); }

}  // namespace tessel::cli
