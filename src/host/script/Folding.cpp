#include "host/script/Folding.h"

#include "qt/editor/EditorSetUp.h"
#include "qt/editor/ScintillaView.h"

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr unsigned long kFoldMargin = 2;
constexpr int kMarginWidth = 14;
constexpr int kMarkingMilliseconds = 4;
constexpr std::size_t kLinesAtOnce = 256;

struct FoldMarker {
  unsigned long number;
  long symbol;
};

constexpr FoldMarker kFoldMarkers[] = {
    {Sci::SC_MARKNUM_FOLDER, Sci::SC_MARK_BOXPLUS},
    {Sci::SC_MARKNUM_FOLDEROPEN, Sci::SC_MARK_BOXMINUS},
    {Sci::SC_MARKNUM_FOLDEREND, Sci::SC_MARK_BOXPLUSCONNECTED},
    {Sci::SC_MARKNUM_FOLDEROPENMID, Sci::SC_MARK_BOXMINUSCONNECTED},
    {Sci::SC_MARKNUM_FOLDERSUB, Sci::SC_MARK_VLINE},
    {Sci::SC_MARKNUM_FOLDERTAIL, Sci::SC_MARK_LCORNER},
    {Sci::SC_MARKNUM_FOLDERMIDTAIL, Sci::SC_MARK_TCORNER},
};

unsigned long LineNumber(long line) { return static_cast<unsigned long>(line); }

void PaintMargin(ScintillaView& view) {
  const EditorTheme theme = ThemeOfWidget(view);
  for (const FoldMarker& marker : kFoldMarkers) {
    view.SendScintilla(Sci::SCI_MARKERSETFORE, marker.number, theme.marginBackground);
    view.SendScintilla(Sci::SCI_MARKERSETBACK, marker.number, theme.marginText);
  }
  view.SendScintilla(Sci::SCI_SETFOLDMARGINCOLOUR, 1UL, theme.marginBackground);
  view.SendScintilla(Sci::SCI_SETFOLDMARGINHICOLOUR, 1UL, theme.marginBackground);
}

void SetUpMargin(ScintillaView& view) {
  for (const FoldMarker& marker : kFoldMarkers) {
    view.SendScintilla(Sci::SCI_MARKERDEFINE, marker.number, marker.symbol);
  }
  view.SendScintilla(Sci::SCI_SETMARGINTYPEN, kFoldMargin, long{Sci::SC_MARGIN_SYMBOL});
  view.SendScintilla(Sci::SCI_SETMARGINMASKN, kFoldMargin,
                     static_cast<long>(static_cast<int>(Sci::SC_MASK_FOLDERS)));
  view.SendScintilla(Sci::SCI_SETMARGINSENSITIVEN, kFoldMargin, 1L);
  view.SendScintilla(Sci::SCI_SETMARGINWIDTHN, kFoldMargin, long{kMarginWidth});
  view.SendScintilla(Sci::SCI_SETFOLDFLAGS, LineNumber(Sci::SC_FOLDFLAG_LINEAFTER_CONTRACTED));
  PaintMargin(view);
}

// Only where lines are out of sight has Scintilla to look what a new level means to them; it wants
// all of the text coloured for it.
void LookAfterHiddenLines(ScintillaView& view) {
  const bool hidden = view.SendScintilla(Sci::SCI_GETALLLINESVISIBLE) == 0;
  view.SendScintilla(Sci::SCI_SETAUTOMATICFOLD,
                     LineNumber(hidden ? Sci::SC_AUTOMATICFOLD_SHOW | Sci::SC_AUTOMATICFOLD_CHANGE
                                       : Sci::SC_AUTOMATICFOLD_SHOW));
}

long LevelOf(const language::FoldLine& line) {
  const long level = Sci::SC_FOLDLEVELBASE + line.depth;
  return line.opens ? level | Sci::SC_FOLDLEVELHEADERFLAG : level;
}

long CaretLine(const ScintillaView& view) {
  return view.SendScintilla(Sci::SCI_LINEFROMPOSITION,
                            LineNumber(view.SendScintilla(Sci::SCI_GETCURRENTPOS)));
}

bool IsVisible(const ScintillaView& view, long line) {
  return view.SendScintilla(Sci::SCI_GETLINEVISIBLE, LineNumber(line)) != 0;
}

/// The line under which a line folds away, maybe itself; -1 where there is none.
long HeaderOf(const ScintillaView& view, long line) {
  const long level = view.SendScintilla(Sci::SCI_GETFOLDLEVEL, LineNumber(line));
  if ((level & Sci::SC_FOLDLEVELHEADERFLAG) != 0) return line;
  return view.SendScintilla(Sci::SCI_GETFOLDPARENT, LineNumber(line));
}

}  // namespace

Folding::Folding(TesselWidget& control, OpenScripts& scripts, StructureReader& reader,
                 QObject* parent)
    : QObject(parent), control_(control), scripts_(scripts) {
  auto& editors = control_.Tessel().Controls().rtbCon;
  for (int i = 0; i < editors.Count(); ++i) Add(editors[i]);
  marking_.setInterval(0);
  connect(&marking_, &QTimer::timeout, this, &Folding::MarkOn);
  subscriptions_ = {
      editors.Loaded.Connect([this](RichTextBox& editor) { Add(editor); }),
      // It may not have come as far as here.
      editors.Unloading.Connect([this](const RichTextBox& editor) {
        if (std::ssize(selections_) > editor.Index()) selections_.pop_back();
      }),
      reader.Read.Connect([this](Slot slot, const language::Structure& structure) {
        BeginMarking(slot, structure);
      }),
      scripts_.Changed.Connect([this](Slot slot, const ChangedRange&) {
        if (slot == slot_) marking_.stop();
      }),
      control_.Tessel().OpenDocuments().Shown.Connect([this](const Document& document) {
        if (ScintillaView* view = ViewOf(document.Editor())) Reveal(document.Editor(), *view);
      }),
  };
  reader.SetWish(this, StructureReader::Wish::kBlocks);
}

ScintillaView* Folding::ViewOf(const RichTextBox& editor) const {
  return qobject_cast<ScintillaView*>(control_.WidgetFor(editor));
}

void Folding::Add(RichTextBox& editor) {
  ScintillaView* view = ViewOf(editor);
  SetUpMargin(*view);
  connect(view, &QsciScintillaBase::SCN_MARGINCLICK, this, [this, view](int position, int, int) {
    Toggle(*view, view->SendScintilla(Sci::SCI_LINEFROMPOSITION, LineNumber(position)));
  });
  selections_.push_back(editor.SelectionMoved.Connect([&editor, view] { Reveal(editor, *view); }));
}

// --- Telling the view which lines fold

void Folding::BeginMarking(Slot slot, const language::Structure& structure) {
  lines_ = FoldLines(scripts_.Of(slot), structure.tree.blocks);
  next_ = 0;
  slot_ = slot;
  view_ = ViewOf(control_.Tessel().OpenDocuments().At(slot).Editor());
  marking_.start();
}

void Folding::MarkOn() {
  const bool fits = view_ != nullptr && view_->mirror().State() == MirrorState::kInStep &&
                    view_->SendScintilla(Sci::SCI_GETLINECOUNT) == std::ssize(lines_);
  if (!fits) return marking_.stop();
  if (next_ == 0) PaintMargin(*view_);
  LookAfterHiddenLines(*view_);
  QElapsedTimer time;
  time.start();
  for (; next_ < lines_.size(); ++next_) {
    if (next_ % kLinesAtOnce == 0 && time.elapsed() >= kMarkingMilliseconds) return;
    const long level = LevelOf(lines_[next_]);
    if (view_->SendScintilla(Sci::SCI_GETFOLDLEVEL, next_) != level) {
      view_->SendScintilla(Sci::SCI_SETFOLDLEVEL, next_, level);
    }
  }
  marking_.stop();
  lines_ = {};
}

// --- Folding

void Folding::FoldAll() {
  ScintillaView& view = *control_.CurrentEditorView();
  view.SendScintilla(Sci::SCI_FOLDALL, LineNumber(Sci::SC_FOLDACTION_CONTRACT));
  TakeCaretOutOfFold(view);
}

void Folding::UnfoldAll() {
  control_.CurrentEditorView()->SendScintilla(Sci::SCI_FOLDALL,
                                              LineNumber(Sci::SC_FOLDACTION_EXPAND));
}

void Folding::ToggleAtCaret() {
  ScintillaView& view = *control_.CurrentEditorView();
  Toggle(view, HeaderOf(view, CaretLine(view)));
}

void Folding::Toggle(ScintillaView& view, long line) {
  if (line < 0) return;
  view.SendScintilla(Sci::SCI_TOGGLEFOLD, LineNumber(line));
  TakeCaretOutOfFold(view);
}

// A person types where the caret is seen: it goes to the line that is left of the block.
void Folding::TakeCaretOutOfFold(ScintillaView& view) {
  long line = CaretLine(view);
  if (IsVisible(view, line)) return;
  while (line >= 0 && !IsVisible(view, line)) {
    line = view.SendScintilla(Sci::SCI_GETFOLDPARENT, LineNumber(line));
  }
  const long at = view.SendScintilla(Sci::SCI_GETLINEENDPOSITION, LineNumber(line));
  auto& editor = control_.Tessel().OpenDocuments().CurrentEditor();
  editor.SelectByHand(view.mirror().OffsetOf(at), 0);
}

void Folding::Reveal(const RichTextBox& editor, ScintillaView& view) {
  if (view.mirror().State() != MirrorState::kInStep) return;
  if (view.SendScintilla(Sci::SCI_GETALLLINESVISIBLE) != 0) return;
  bool hidden = false;
  for (const Position place : {editor.SelStart(), editor.SelEnd()}) {
    const auto at = LineNumber(view.mirror().PositionOf(place));
    const long line = view.SendScintilla(Sci::SCI_LINEFROMPOSITION, at);
    if (IsVisible(view, line)) continue;
    view.SendScintilla(Sci::SCI_ENSUREVISIBLE, LineNumber(line));
    hidden = true;
  }
  if (hidden) view.SendScintilla(Sci::SCI_SCROLLCARET);
}

}  // namespace tessel
