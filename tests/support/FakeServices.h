// The world around the control, as a test plays it.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "models/Control.h"
#include "models/Form.h"
#include "services/HeadlessServices.h"
#include "services/LinearCongruentialRandom.h"
#include "services/MemorySettingsStore.h"
#include "services/Services.h"
#include "support/MemoryFiles.h"

namespace tessel::test {

/// Takes the first of the queued answers, or gives nothing.
template <class T>
std::optional<T> TakeFirst(std::deque<T>& queue) {
  if (queue.empty()) return std::nullopt;
  T first = std::move(queue.front());
  queue.pop_front();
  return first;
}

/// Records the boxes. Answers with the queued answers; without one with OK, else Cancel, else No.
class FakeMessageBox : public MessageBox {
 public:
  struct Shown {
    std::string text;
    MessageIcon icon = MessageIcon::kNone;
    std::string title;
    MessageButtons buttons = MessageButtons::kOk;

    friend bool operator==(const Shown&, const Shown&) = default;
  };

  std::vector<Shown> shown;
  std::deque<MessageAnswer> answers;
  std::function<void()> meanwhile;  ///< runs while a box is open

  MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                     MessageButtons buttons) override {
    shown.push_back({text, icon, title, buttons});
    if (meanwhile) meanwhile();
    return TakeFirst(answers).value_or(Default(buttons));
  }

 private:
  static MessageAnswer Default(MessageButtons buttons) {
    switch (buttons) {
      case MessageButtons::kOk:
        return MessageAnswer::kOk;
      case MessageButtons::kYesNo:
      case MessageButtons::kNoYes:
        return MessageAnswer::kNo;
      case MessageButtons::kYesNoCancel:
        break;
    }
    return MessageAnswer::kCancel;
  }
};

/// Records what was asked for. Without a queued answer the dialog is cancelled; an answer of
/// nullopt cancels it too.
class FakeFileDialogs : public FileDialogs {
 public:
  using Answer = std::optional<std::vector<std::string>>;

  std::vector<FileDialogRequest> requests;
  std::deque<Answer> answers;
  std::function<void()> meanwhile;  ///< runs while a dialog is open

  Answer Show(const FileDialogRequest& request) override {
    requests.push_back(request);
    if (meanwhile) meanwhile();
    return TakeFirst(answers).value_or(std::nullopt);
  }
};

/// Plays a person at a modal form: every form that is shown runs the next of the queued scripts,
/// and is hidden afterwards where the script left it open.
class FakeModalForms : public ModalForms {
 public:
  std::vector<std::string> shown;  ///< names
  std::deque<std::function<void(Form&)>> scripts;

  void ShowModal(Form& form) override {
    shown.push_back(form.Name());
    form.Show();
    if (const auto script = TakeFirst(scripts)) (*script)(form);
    if (form.Visible()) form.Hide();
  }
};

/// Records where code moved the focus: names, and the index of an array's element.
class FakeFocus : public Focus {
 public:
  std::vector<std::pair<std::string, int>> moves;

  void MoveTo(Control& control) override { moves.emplace_back(control.Name(), control.Index()); }
};

/// Counts the calls; `meanwhile` runs in each.
class FakeMessageLoop : public MessageLoop {
 public:
  int calls = 0;
  std::function<void()> meanwhile;

  void DoEvents() override {
    ++calls;
    if (meanwhile) meanwhile();
  }
};

/// Gives the queued numbers, and those of the real generator when they are used up.
class FakeRandom : public RandomNumbers {
 public:
  std::deque<float> numbers;
  int drawn = 0;

  float Next() override {
    ++drawn;
    const auto queued = TakeFirst(numbers);
    return queued ? *queued : generator_.Next();
  }

 private:
  LinearCongruentialRandom generator_;
};

/// One of each. `Get` gives the Services that a control takes; they hold references into this.
struct FakeServices {
  FakeMessageBox messages;
  FakeFileDialogs fileDialogs;
  FakeModalForms forms;
  MemoryClipboard clipboard;
  MemorySettingsStore settings;
  PlainScreenPointer pointer;
  MemoryFiles files;
  FakeRandom random;
  FakeFocus focus;
  FakeMessageLoop loop;
  std::string hostDirectory = "/host";

  /// `separator` is that of the files' paths.
  explicit FakeServices(char separator = '/') : files(separator) {}
  FakeServices(const FakeServices&) = delete;
  FakeServices& operator=(const FakeServices&) = delete;

  Services Get() {
    return {.messages = messages,
            .fileDialogs = fileDialogs,
            .forms = forms,
            .clipboard = clipboard,
            .settings = settings,
            .pointer = pointer,
            .files = files,
            .random = random,
            .focus = focus,
            .loop = loop,
            .hostDirectory = hostDirectory};
  }
};

}  // namespace tessel::test
