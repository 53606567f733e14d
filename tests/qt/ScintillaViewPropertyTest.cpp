// Whatever code and a person do, in any order: widget and model agree.
#include <gtest/gtest.h>
// needs the one above
#include <rapidcheck/gtest.h>

#include "colouring/Colouring.h"
#include "qt/ScintillaViewFixture.h"
#include "text/Text.h"

namespace tessel {
namespace {

struct Agreement : ScintillaViewFixture {
  void TestBody() override {}

  void Check() {
    RC_ASSERT(Displayed() == model.Text());
    RC_ASSERT(screen.Selection() == Selected());
    RC_ASSERT(screen.Colours() == ColoursToDraw());
  }

  std::vector<ColourRun> ColoursToDraw() {
    if (!view.LiveColours()) return model.Store().Runs(0, model.Length());
    RichTextBox fresh(controls, "fresh");
    fresh.SetText(model.Text());
    ColorizeDocument(fresh, [](const std::string&) {});
    return fresh.Store().Runs(0, fresh.Length());
  }
};

// Breaks, letters of two cases and bytes that take one, two and three bytes in UTF-8.
constexpr std::string_view kSomeBytes = "\r\n\r\nab \tC\x80\x93\xE4\xFF\x81\0z";

rc::Gen<std::string> SomeText() {
  return rc::gen::oneOf(
      rc::gen::container<std::string>(rc::gen::elementOf(std::string(kSomeBytes))),
      rc::gen::element<std::string>("/*", "*/", "//", "define", " actor ", "definequote "));
}

struct Step {
  int kind = 0;
  int at = 0;
  int length = 0;
  std::string text;
};

void showValue(const Step& step, std::ostream& out) {
  out << "{" << step.kind << ", " << step.at << ", " << step.length << ", ";
  rc::show(step.text, out);
  out << "}";
}

rc::Gen<Step> SomeStep() {
  return rc::gen::build<Step>(rc::gen::set(&Step::kind, rc::gen::inRange(0, 19)),
                              rc::gen::set(&Step::at, rc::gen::inRange(0, 60)),
                              rc::gen::set(&Step::length, rc::gen::inRange(0, 12)),
                              rc::gen::set(&Step::text, SomeText()));
}

struct KeyPress {
  int key;
  Qt::KeyboardModifiers modifiers;
};

const KeyPress kKeys[] = {
    {Qt::Key_Left, Qt::NoModifier},        {Qt::Key_Right, Qt::NoModifier},
    {Qt::Key_Up, Qt::NoModifier},          {Qt::Key_Down, Qt::NoModifier},
    {Qt::Key_Left, Qt::ShiftModifier},     {Qt::Key_Right, Qt::ShiftModifier},
    {Qt::Key_Up, Qt::ShiftModifier},       {Qt::Key_Down, Qt::ShiftModifier},
    {Qt::Key_Home, Qt::ControlModifier},   {Qt::Key_End, Qt::ShiftModifier},
    {Qt::Key_Backspace, Qt::NoModifier},   {Qt::Key_Delete, Qt::NoModifier},
    {Qt::Key_Delete, Qt::ControlModifier}, {Qt::Key_Backspace, Qt::ControlModifier},
    {Qt::Key_Return, Qt::NoModifier},      {Qt::Key_Tab, Qt::NoModifier},
    {Qt::Key_Tab, Qt::ShiftModifier},      {Qt::Key_D, Qt::ControlModifier},
    {Qt::Key_T, Qt::ControlModifier},      {Qt::Key_A, Qt::ControlModifier},
    {Qt::Key_Z, Qt::ControlModifier},      {Qt::Key_Y, Qt::ControlModifier},
    {Qt::Key_X, Qt::ControlModifier},      {Qt::Key_V, Qt::ControlModifier},
    {Qt::Key_Insert, Qt::NoModifier},      {Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier},
};

QString Typeable(const std::string& bytes) {
  QString text;
  for (const char c : bytes) {
    text += QChar(static_cast<char16_t>(CodePointOfByte(static_cast<unsigned char>(c))));
  }
  return text;
}

void Play(Agreement& editor, const Step& step) {
  RichTextBox& model = editor.model;
  switch (step.kind) {
    case 0:
      model.SetText(step.text + step.text);
      break;
    case 1:
    case 2:
      model.SetSelText(step.text);
      break;
    case 3:
      editor.Select(step.at, step.length);
      break;
    case 4:
      model.SetSelColor(static_cast<Colour>(step.at % 5));
      break;
    case 5:
      editor.Park();
      break;
    case 6:
      editor.Unpark();
      break;
    case 7:
      model.SetVisible(step.at % 3 != 0);
      break;
    case 8:
      model.Undo();
      break;
    case 9:
      model.Span("ab \t", step.at % 2 == 0, step.length % 2 == 0);
      break;
    case 10:
      editor.screen.Type(Typeable(step.text));
      break;
    case 11:
      QApplication::processEvents();
      break;
    case 12:
      model.Redo();
      break;
    case 13:
      editor.view.SetLiveColours(step.at % 3 != 0);
      break;
    default: {
      const KeyPress& press = kKeys[static_cast<std::size_t>(step.at) % std::size(kKeys)];
      for (int i = 0; i <= step.length % 4; ++i) editor.Press(press.key, press.modifiers);
    }
  }
}

RC_GTEST_PROP(ScintillaViewAgrees, AfterAnyStepsOfCodeAndOfAPerson, ()) {
  const auto start = *SomeText();
  const auto steps = *rc::gen::container<std::vector<Step>>(SomeStep());
  Agreement editor;
  editor.clipboard.SetText("p\x80\r\n");
  editor.model.SetText(start);
  const auto checkEach = *rc::gen::arbitrary<bool>();
  for (const Step& step : steps) {
    Play(editor, step);
    // Looking brings a parked view up to date, so let some sequences run unseen.
    if (checkEach) editor.Check();
  }
  editor.Unpark();
  editor.model.SetVisible(true);
  editor.Check();
}

}  // namespace
}  // namespace tessel
