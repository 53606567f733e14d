#include "host/script/Completion.h"

#include <QToolTip>
#include <algorithm>

#include "base/RuntimeError.h"
#include "language/NameAt.h"
#include "qt/base/QtText.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/ScintillaView.h"
#include "text/Text.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr std::size_t kFewestLettersTyped = 3;
constexpr std::size_t kMostWords = 2000;
constexpr long kRowsOfList = 10;

void SetUpList(ScintillaView& view) {
  view.SendScintilla(Sci::SCI_AUTOCSETSEPARATOR, static_cast<unsigned long>('\n'));
  view.SendScintilla(Sci::SCI_AUTOCSETTYPESEPARATOR, 0UL);
  view.SendScintilla(Sci::SCI_AUTOCSETIGNORECASE, 1UL);
  view.SendScintilla(Sci::SCI_AUTOCSETCASEINSENSITIVEBEHAVIOUR,
                     static_cast<unsigned long>(Sci::SC_CASEINSENSITIVEBEHAVIOUR_IGNORECASE));
  view.SendScintilla(Sci::SCI_AUTOCSETORDER, static_cast<unsigned long>(Sci::SC_ORDER_PERFORMSORT));
  view.SendScintilla(Sci::SCI_AUTOCSETMAXHEIGHT, static_cast<unsigned long>(kRowsOfList));
}

bool IsLess(const std::string& a, const std::string& b) {
  const auto& lower = LowerTable();
  return std::ranges::lexicographical_compare(a, b, [&](char x, char y) {
    return lower[static_cast<unsigned char>(x)] < lower[static_cast<unsigned char>(y)];
  });
}

bool IsLetter(char32_t character) {
  return character > ' ' && character != '{' && character != '}' && character != '/';
}

}  // namespace

Completion::Completion(TesselWidget& control, OpenScripts& scripts, SettingsStore& settings,
                       QObject* parent)
    : QObject(parent),
      control_(control),
      scripts_(scripts),
      settings_(settings),
      names_(control.Tessel().OpenDocuments(), scripts) {
  HostedControls& controls = control_.Tessel().Controls();
  for (int i = 0; i < controls.rtbCon.Count(); ++i) Add(controls.rtbCon[i]);
  subscriptions_ = {
      controls.rtbCon.Loaded.Connect([this](RichTextBox& editor) { Add(editor); }),
      // The list of words is filled anew where they change.
      controls.lstWords.Refresh.Connect([this] { words_.reset(); }),
  };
}

void Completion::Add(RichTextBox& editor) {
  auto* view = qobject_cast<ScintillaView*>(control_.WidgetFor(editor));
  SetUpList(*view);
  connect(view, qOverload<const char*, int, int, int>(&QsciScintillaBase::SCN_AUTOCSELECTION), this,
          [view](const char* chosen, int position, int, int) {
            view->SendScintilla(Sci::SCI_AUTOCCANCEL);
            const auto bytes = BytesOfUtf8(chosen);
            const Position begin = view->mirror().OffsetOf(position);
            const Position caret =
                view->mirror().OffsetOf(view->SendScintilla(Sci::SCI_GETCURRENTPOS));
            if (bytes) view->ReplaceByHand(begin, caret - begin, *bytes);
          });
  // The text has the character when the key is through.
  connect(
      view, &QsciScintillaBase::SCN_CHARADDED, this,
      [this, view](int character) { OnTyped(*view, static_cast<char32_t>(character)); },
      Qt::QueuedConnection);
}

void Completion::OnTyped(ScintillaView& view, char32_t character) {
  if (!whileTyping_ || &view != control_.CurrentEditorView()) return;
  if (view.SendScintilla(Sci::SCI_AUTOCACTIVE) != 0) return;
  if (character == ' ') {
    ShowTip();
    return;
  }
  const auto typed = IsLetter(character) ? TypedAtCaret() : std::nullopt;
  if (!typed || typed->text.size() < kFewestLettersTyped) return;
  const auto words = WordsFor(typed->text, false);
  const bool nothingMore = words.size() == 1 && language::SameName(words.front(), typed->text);
  if (!words.empty() && !nothingMore) ShowList(view, typed->text, words);
}

std::optional<Completion::Typed> Completion::TypedAtCaret() {
  const Document document = control_.Tessel().OpenDocuments().Current();
  const Position caret = document.Editor().SelStart();
  const language::Script& script = scripts_.Of(document.Place());
  const auto typed = language::TypedAt(script, caret);
  if (!typed) return std::nullopt;
  return Typed{typed->begin, std::string(script.Text(*typed))};
}

const std::vector<ScriptWord>& Completion::Words() {
  if (!words_) {
    try {
      words_ = ReadScriptWords(settings_);
    } catch (const RuntimeError&) {  // none, then
      words_.emplace();
    }
  }
  return *words_;
}

std::vector<std::string> Completion::WordsFor(const std::string& prefix, bool thoroughly) {
  std::vector<std::string> words = names_.BeginningWith(prefix, thoroughly);
  std::erase(words, prefix);  // what is being typed may be one of the names
  for (const ScriptWord& word : Words()) {
    if (BeginsWith(word.word, prefix)) words.push_back(word.word);
  }
  std::ranges::sort(words, IsLess);
  const auto same = [](const std::string& a, const std::string& b) {
    return language::SameName(a, b);
  };
  words.erase(std::unique(words.begin(), words.end(), same), words.end());
  if (words.size() > kMostWords) words.resize(kMostWords);
  return words;
}

void Completion::ShowList(ScintillaView& view, const std::string& prefix,
                          const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) {
    if (!list.empty()) list += '\n';
    list += Utf8OfBytes(word);
  }
  view.SendScintilla(Sci::SCI_AUTOCSHOW, static_cast<uintptr_t>(Utf8OfBytes(prefix).size()),
                     list.c_str());
}

QString Completion::Complete() {
  ScintillaView* view = control_.CurrentEditorView();
  if (control_.Tessel().Running()) return {};
  if (view->CurrentReading()) return view->CurrentReading()->why;
  RichTextBox& editor = control_.Tessel().OpenDocuments().CurrentEditor();
  if (editor.SelLength() > 0) editor.SelectByHand(editor.SelEnd(), 0);
  const auto typed = TypedAtCaret();
  if (!typed) return tr("The caret is in a comment.");
  const auto words = WordsFor(typed->text, true);
  if (words.empty()) {
    return tr("No word and no name begins with \"%1\".").arg(ShownText(typed->text));
  }
  ShowList(*view, typed->text, words);
  return {};
}

// --- Parameters

const ScriptWord* Completion::WordBeforeCaret() {
  const Document document = control_.Tessel().OpenDocuments().Current();
  const Position caret = document.Editor().SelStart();
  const language::Script& script = scripts_.Of(document.Place());
  const Position line = script.Line(script.PlaceOf(caret).line).begin;
  const ScriptWord* last = nullptr;
  language::Reader reader = script.ReaderBefore(line);
  for (language::Token token = reader.Next();
       token.kind != language::TokenKind::kEnd && token.range.begin < caret;
       token = reader.Next()) {
    if (token.kind != language::TokenKind::kWord || token.range.begin < line) continue;
    const std::string_view text = script.Text(token.range);
    const auto known = std::ranges::find_if(
        Words(), [&](const ScriptWord& word) { return language::SameName(word.word, text); });
    if (known != Words().end()) last = &*known;
  }
  return last;
}

bool Completion::ShowTip() {
  const ScriptWord* word = WordBeforeCaret();
  if (word == nullptr) return false;
  ScintillaView& view = *control_.CurrentEditorView();
  const std::string tip =
      Utf8OfBytes(word->parameters.empty() ? word->word : word->word + "  " + word->parameters);
  view.SendScintilla(Sci::SCI_CALLTIPSETBACK, QToolTip::palette().color(QPalette::ToolTipBase));
  view.SendScintilla(Sci::SCI_CALLTIPSETFORE, QToolTip::palette().color(QPalette::ToolTipText));
  view.SendScintilla(Sci::SCI_CALLTIPSHOW,
                     static_cast<uintptr_t>(view.SendScintilla(Sci::SCI_GETCURRENTPOS)),
                     tip.c_str());
  return true;
}

QString Completion::ShowParameters() {
  return ShowTip() ? QString() : tr("There is no script word in front of the caret.");
}

}  // namespace tessel
