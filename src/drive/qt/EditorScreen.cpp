#include "drive/qt/EditorScreen.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

#include "drive/qt/Input.h"
#include "qt/base/Utf8.h"
#include "qt/base/Windows1252Qt.h"
#include "qt/editor/EditorKeys.h"
#include "qt/editor/ScintillaView.h"

namespace tessel::drive {
namespace {

using Sci = QsciScintillaBase;

void Press(QWidget& widget, int key, const QString& text) {
  for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event(type, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&widget, &event);
  }
}

}  // namespace

std::string_view ShownUtf8(const ScintillaView& view) {
  const long size = view.SendScintilla(Sci::SCI_GETLENGTH);
  const auto address = view.SendScintilla(Sci::SCI_GETRANGEPOINTER, 0UL, size);
  return {reinterpret_cast<const char*>(address), static_cast<std::size_t>(size)};
}

std::pair<Position, Position> ShownSelection(const ScintillaView& view) {
  const std::string_view text = ShownUtf8(view);
  const auto start = static_cast<std::size_t>(view.SendScintilla(Sci::SCI_GETSELECTIONSTART));
  const auto end = static_cast<std::size_t>(view.SendScintilla(Sci::SCI_GETSELECTIONEND));
  return {CharactersOfUtf8(text.substr(0, start)),
          CharactersOfUtf8(text.substr(start, end - start))};
}

void EditorScreen::Type(const QString& text) {
  const auto lineEndOfReturn = [this] { return LineEndOfReturn(view_.mirror().Model().Bytes()); };
  view_.mirror().ByHand([&] {
    for (qsizetype i = 0; i < text.size(); ++i) {
      const QChar c = text[i];
      const bool pair = QStringView(text).mid(i, 2) == QLatin1String("\r\n");
      const QString lineEnd = pair ? text.mid(i, 2) : QString(c);
      if ((c == '\r' || c == '\n') && lineEnd.toStdString() == lineEndOfReturn()) {
        Press(view_, Qt::Key_Return, QStringLiteral("\r"));
        i += pair ? 1 : 0;
      } else if (c == '\t' && (i > 0 || text.size() == 1)) {  // over lines the key alone indents
        Press(view_, Qt::Key_Tab, lineEnd);
      } else if (c.isPrint()) {
        Press(view_, c.toUpper().unicode(), lineEnd);
      } else {
        SendText(view_, lineEnd);
        i += pair ? 1 : 0;
      }
    }
  });
}

std::string_view EditorScreen::Utf8() {
  view_.mirror().Settle();
  return ShownUtf8(view_);
}

std::string EditorScreen::Text() { return BytesOfUtf8(Utf8()).value_or(std::string()); }

std::pair<Position, Position> EditorScreen::Selection() {
  view_.mirror().Settle();
  return ShownSelection(view_);
}

bool EditorScreen::SelectionShown() const { return !view_.mirror().SelectionHidden(); }

std::vector<ColourRun> EditorScreen::Colours() {
  const std::size_t size = Utf8().size();
  // Lets the widget ask for all colours that it lacks.
  view_.SendScintilla(Sci::SCI_COLOURISE, view_.SendScintilla(Sci::SCI_GETENDSTYLED), -1L);
  std::string cells(2 * size + 2, '\0');  // a character and its style, by turns
  view_.SendScintilla(Sci::SCI_GETSTYLEDTEXT, 0L, static_cast<long>(size), cells.data());
  std::vector<ColourRun> runs;
  Position offset = 0;
  for (std::size_t i = 0; i < size; ++i) {
    if (!StartsCharacter(cells[2 * i])) continue;
    const auto style = static_cast<unsigned char>(cells[2 * i + 1]);
    const Colour colour = view_.mirror().ColourOfStyle(style);
    if (runs.empty() || runs.back().colour != colour) runs.push_back({offset, 0, colour});
    ++runs.back().length;
    ++offset;
  }
  return runs;
}

}  // namespace tessel::drive
