// Words and names that complete what is typed, and what a word takes.
#pragma once

#include <QObject>
#include <QString>
#include <optional>
#include <string>
#include <vector>

#include "host/script/KnownNames.h"
#include "host/script/OpenScripts.h"
#include "language/Range.h"
#include "qt/TesselWidget.h"
#include "services/Services.h"
#include "words/ScriptWords.h"

namespace tessel {

class ScintillaView;

/// Offers the script words and the names of all open documents in a list below the caret. What is
/// chosen replaces what was typed of it: one edit of a person. Control, scripts and settings
/// outlive this.
class Completion : public QObject {
  Q_OBJECT

 public:
  Completion(TesselWidget& control, OpenScripts& scripts, SettingsStore& settings, QObject* parent);

  /// Shows the list, or says why not.
  QString Complete();
  /// Shows the parameters of the last script word in front of the caret, or says why not.
  QString ShowParameters();
  /// Also does so while somebody types: the list from the third letter on, parameters behind a
  /// word.
  void SetWhileTyping(bool wanted) { whileTyping_ = wanted; }

 private:
  struct Typed {
    Position begin = 0;
    std::string text;  // up to the caret
  };

  void Add(RichTextBox& editor);
  void OnTyped(ScintillaView& view, char32_t character);
  std::optional<Typed> TypedAtCaret();
  std::vector<std::string> WordsFor(const std::string& prefix, bool thoroughly);
  const std::vector<ScriptWord>& Words();
  const ScriptWord* WordBeforeCaret();
  static void ShowList(ScintillaView& view, const std::string& prefix,
                       const std::vector<std::string>& words);
  bool ShowTip();

  TesselWidget& control_;
  OpenScripts& scripts_;
  SettingsStore& settings_;
  KnownNames names_;
  std::optional<std::vector<ScriptWord>> words_;
  bool whileTyping_ = false;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
