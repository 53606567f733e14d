#include "host/view/EditorLooks.h"

#include <algorithm>

namespace tessel {
namespace {

using Sci = QsciScintillaBase;

constexpr int kLeastZoom = -8;
constexpr int kMostZoom = 20;
constexpr int kRulerColumn = 80;

struct Toggle {
  WindowCommand command;
  Wish wish;
};

constexpr Toggle kToggles[] = {
    {WindowCommand::kWordWrap, Wish::kWordWrap},
    {WindowCommand::kShowBlanks, Wish::kShowBlanks},
    {WindowCommand::kRuler, Wish::kRuler},
};

}  // namespace

EditorLooks::EditorLooks(TesselWidget& control, MainMenu& menu, Preferences& preferences)
    : QObject(&menu), preferences_(preferences), editors_(control) {
  menu.On(WindowCommand::kZoomIn, [this] { Zoom(preferences_.Number(Wish::kZoom) + 1); });
  menu.On(WindowCommand::kZoomOut, [this] { Zoom(preferences_.Number(Wish::kZoom) - 1); });
  menu.On(WindowCommand::kZoomReset, [this] { Zoom(0); });
  for (const auto& [command, wish] : kToggles) {
    menu.OnToggle(command, preferences_.Wants(wish),
                  [this, wanted = wish](bool on) { preferences_.Set(wanted, on ? 1 : 0); });
  }
  changed_ = preferences_.Changed.Connect([this, &menu](Wish wish) {
    for (const Toggle& toggle : kToggles) {
      if (toggle.wish == wish) menu.Action(toggle.command).setChecked(preferences_.Wants(wish));
    }
    const bool font = wish == Wish::kFont || wish == Wish::kFontSize;
    editors_.Do([this, font](ScintillaView& view) {
      font ? ApplyFont(view) : ApplyLooks(view, preferences_);
    });
  });
  editors_.Always([this](ScintillaView& view) {
    ApplyFont(view);
    ApplyLooks(view, preferences_);
    view.ShowCaretAlways(true);
    // By the wheel, in one of them.
    connect(&view, &QsciScintillaBase::SCN_ZOOM, this,
            [this, &view] { Zoom(static_cast<int>(view.SendScintilla(Sci::SCI_GETZOOM))); });
  });
}

void EditorLooks::Zoom(int points) {
  preferences_.Set(Wish::kZoom, std::clamp(points, kLeastZoom, kMostZoom));
}

void EditorLooks::ApplyFont(ScintillaView& view) const {
  const QString family = QString::fromStdString(preferences_.Text(Wish::kFont));
  const int points = preferences_.Number(Wish::kFontSize);
  view.SetTextFont(family, points);
}

void ApplyLooks(QsciScintillaBase& view, const Preferences& preferences) {
  const auto zoom = preferences.Number(Wish::kZoom);
  if (view.SendScintilla(Sci::SCI_GETZOOM) != zoom) {
    view.SendScintilla(Sci::SCI_SETZOOM, static_cast<long>(zoom));
  }
  view.SendScintilla(Sci::SCI_SETWRAPMODE, preferences.Wants(Wish::kWordWrap)
                                               ? long{Sci::SC_WRAP_WORD}
                                               : long{Sci::SC_WRAP_NONE});
  view.SendScintilla(Sci::SCI_SETVIEWWS, preferences.Wants(Wish::kShowBlanks)
                                             ? long{Sci::SCWS_VISIBLEALWAYS}
                                             : long{Sci::SCWS_INVISIBLE});
  view.SendScintilla(Sci::SCI_SETTABWIDTH, static_cast<unsigned long>(std::clamp(
                                               preferences.Number(Wish::kTabWidth), 1, 16)));
  view.SendScintilla(Sci::SCI_SETEDGECOLUMN, static_cast<long>(kRulerColumn));
  view.SendScintilla(Sci::SCI_SETEDGECOLOUR, view.palette().color(QPalette::Mid));
  view.SendScintilla(Sci::SCI_SETEDGEMODE,
                     preferences.Wants(Wish::kRuler) ? long{Sci::EDGE_LINE} : long{Sci::EDGE_NONE});
}

}  // namespace tessel
