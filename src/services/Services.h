// What the logic asks of the world around it. The Qt platform, the command line and the tests each
// pass their own.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessel {

class Control;
class Form;

enum class MessageIcon { kNone, kInformation, kExclamation, kQuestion };
/// With kNoYes the Return key means No: where Yes loses something, or while a person types.
enum class MessageButtons { kOk, kYesNo, kYesNoCancel, kNoYes };
enum class MessageAnswer { kOk, kYes, kNo, kCancel };

/// The title of every message box that has one.
inline constexpr const char* kProgramTitle = "Zanth Manager";

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  /// Shows a modal box and returns the pressed button. `text` and `title` are plain text.
  virtual MessageAnswer Show(const std::string& text, MessageIcon icon, const std::string& title,
                             MessageButtons buttons) = 0;
};

/// What a file dialog is asked to show.
struct FileDialogRequest {
  enum class Kind { kOpen, kSave };
  Kind kind = Kind::kOpen;
  std::string filter;    ///< "description|pattern"
  int filterIndex = 1;   ///< from 1
  int flags = 0;         ///< see CommonDialog.h
  std::string initDir;   ///< where it starts
  std::string fileName;  ///< the name proposed
  bool cancelError = true;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  /// The full paths of the chosen files (one of a save dialog), or nothing when cancelled.
  virtual std::optional<std::vector<std::string>> Show(const FileDialogRequest& request) = 0;
};

class ModalForms {
 public:
  virtual ~ModalForms() = default;
  /// Shows the form (Form::Show) and returns when it has been hidden. Meanwhile the user reaches
  /// nothing but the form, whose handlers run as commands of their own.
  virtual void ShowModal(Form& form) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void Clear() = 0;
  /// Text is a sequence of bytes, as in the editor.
  virtual void SetText(const std::string& text) = 0;
  virtual std::string GetText() = 0;
};

/// Sections of key = value, kept for the user between runs. Keys and section names are compared
/// without regard to ASCII case and keep the case first written; entries come back in the order in
/// which they were first written. Errors are RuntimeErrors.
class SettingsStore {
 public:
  using Entry = std::pair<std::string, std::string>;

  virtual ~SettingsStore() = default;
  virtual std::optional<std::string> GetSetting(const std::string& section,
                                                const std::string& key) = 0;
  virtual std::vector<Entry> GetAllSettings(const std::string& section) = 0;
  virtual void SaveSetting(const std::string& section, const std::string& key,
                           const std::string& value) = 0;
  /// The same for many entries, in their order. A store in a file saves all of them or none.
  virtual void SaveSettings(const std::string& section, const std::vector<Entry>& entries) {
    for (const auto& [key, value] : entries) SaveSetting(section, key, value);
  }
  /// A key that is not there is no error.
  virtual void DeleteSetting(const std::string& section, const std::string& key) = 0;
};

/// The pointer's shape over the whole screen.
enum class PointerShape { kDefault = 0, kHourglass = 11 };

class ScreenPointer {
 public:
  virtual ~ScreenPointer() = default;
  virtual PointerShape Shape() const = 0;
  virtual void SetShape(PointerShape shape) = 0;
};

/// Files by path. Paths are resolved without regard to case where nothing of that exact name
/// exists; an exact match always wins. Only WriteAs takes a path as it stands. Errors are
/// RuntimeErrors that name the path and the reason.
class Files {
 public:
  virtual ~Files() = default;
  virtual std::string Read(const std::string& path) = 0;
  /// Writes into the file that was read by this path, whatever its spelling. Leaves the old bytes
  /// or the new ones whole, whatever happens.
  virtual void Write(const std::string& path, std::string_view bytes) = 0;
  /// The same for a name that somebody gave for the result: exactly that file is made or replaced,
  /// and one of another spelling stays.
  virtual void WriteAs(const std::string& path, std::string_view bytes) = 0;
  /// Makes an existing file writable for its owner. A file that is not there is no error.
  virtual void SetAttributesNormal(const std::string& path) = 0;
  /// The file names that a listing of the path yields: a file's path yields its name; a directory's
  /// path, with a separator at its end, the files in it; "*" and "?" in the last component match.
  virtual std::vector<std::string> Listing(const std::string& path) = 0;
  /// "\" or "/".
  virtual char Separator() const = 0;
};

class RandomNumbers {
 public:
  virtual ~RandomNumbers() = default;
  /// The next number, in [0, 1).
  virtual float Next() = 0;
};

class Focus {
 public:
  virtual ~Focus() = default;
  /// Code moves the focus, which is not a user's gesture: no GotFocus is raised.
  virtual void MoveTo(Control& control) = 0;
};

class MessageLoop {
 public:
  virtual ~MessageLoop() = default;
  /// Lets windows paint and pending events run, in the middle of a command: timers and calls of
  /// other programs, but nothing that a user does. A gesture would run inside of that command.
  virtual void DoEvents() = 0;
};

/// All of them, for one control. They outlive it.
struct Services {
  MessageBox& messages;
  FileDialogs& fileDialogs;
  ModalForms& forms;
  Clipboard& clipboard;
  SettingsStore& settings;
  ScreenPointer& pointer;
  Files& files;
  RandomNumbers& random;
  Focus& focus;
  MessageLoop& loop;
  /// The host program's directory: templates, and the first directory of the file dialogs.
  std::string hostDirectory;
};

}  // namespace tessel
