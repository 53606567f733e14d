// Whatever happens to a model and to a document in memory, in any order: the mirror keeps them
// equal.
#include <gtest/gtest.h>
// needs the one above
#include <rapidcheck/gtest.h>

#include "qt/ScintillaMirrorFixture.h"

namespace tessel {
namespace {

// Breaks, letters and bytes that take one, two and three bytes in UTF-8.
constexpr std::string_view kSomeBytes = "\r\n\r\nab \tC\x80\x93\xE4\xFF\x81\0z";

struct Step {
  int kind = 0;
  Position at = 0;
  Position length = 0;
  std::string text;
};

void showValue(const Step& step, std::ostream& out) {
  out << "{" << step.kind << ", " << step.at << ", " << step.length << ", ";
  rc::show(step.text, out);
  out << "}";
}

rc::Gen<std::string> SomeText() {
  return rc::gen::container<std::string>(rc::gen::elementOf(std::string(kSomeBytes)));
}

struct Play {
  MirroredModel& on;
  const Step& step;
  bool alone = true;  // no handler changes what a person does

  RichTextBox& model = on.model;
  Position characters = CharactersOfUtf8(on.document.utf8);
  Position at = std::min(step.at, characters);
  Position length = std::min(step.length, characters - at);
  std::string utf8 = Utf8OfBytes(step.text);

  void SelectInModel() const {
    model.SetSelStart(step.at);
    model.SetSelLength(step.length);
  }
  void Key() const {
    on.mirror.ByHand([&] { Edit(utf8); }, true);
    if (alone && !foreignBefore) RC_ASSERT(model.Text() == on.ShownText());
  }
  void SeveralKeys() const {
    on.mirror.ByHand([&] {
      Edit(utf8);
      on.Edit(0, std::min<Position>(1, CharactersOfUtf8(on.document.utf8)), "x\xC3\xA4");
      on.mirror.ByHand([&] { on.Edit(0, 0, "\xE2\x82\xAC"); });
    });
    if (alone && !foreignBefore) RC_ASSERT(model.Text() == on.ShownText());
  }
  void KeyAndCommand() const {
    on.mirror.ByHand([&] {
      Edit(utf8);
      on.mirror.TakeOver();
      model.EditByHand(model.SelStart(), model.SelLength(), step.text);
    });
  }
  void ForeignKey() const {
    on.mirror.ByHand([&] { Edit("a" + std::string(kForeign)); });
  }
  // At the start of a gesture the document catches up: places are those of the new text.
  void Edit(const std::string& inserted) const {
    const Position size = CharactersOfUtf8(on.document.utf8);
    const Position start = std::min(at, size);
    on.Edit(start, std::min(length, size - start), inserted);
  }
  void Mark() const {
    on.mirror.ByHand([&] {
      const Position size = CharactersOfUtf8(on.document.utf8);
      const Position start = std::min(at, size);
      on.document.selection = {on.PositionOf(start), on.PositionOf(std::min(start + length, size))};
    });
  }

  bool foreignBefore = !BytesOfUtf8(on.document.utf8);
};

using Kind = std::function<void(const Play&)>;
const std::vector<Kind>& Kinds() {
  static const std::vector<Kind> kinds = {
      [](const Play& play) { play.model.SetText(play.step.text); },
      [](const Play& play) { play.model.SetSelText(play.step.text); },
      [](const Play& play) { play.model.SetSelText(play.step.text + "\x80"); },
      [](const Play& play) { play.SelectInModel(); },
      [](const Play& play) { play.SelectInModel(); },
      [](const Play& play) { play.model.SetSelColor(static_cast<Colour>(play.step.at % 5)); },
      [](const Play& play) { play.model.SetSelColor(static_cast<Colour>(play.step.at % 5)); },
      [](const Play& play) { play.model.SetVisible(play.step.at % 3 != 0); },
      [](const Play& play) { play.model.Undo(); },
      [](const Play& play) { play.model.Redo(); },
      [](const Play& play) { play.on.Park(); },
      [](const Play& play) { play.on.Unpark(); },
      [](const Play& play) { play.Key(); },
      [](const Play& play) { play.Key(); },
      [](const Play& play) { play.SeveralKeys(); },
      [](const Play& play) { play.KeyAndCommand(); },
      [](const Play& play) { play.ForeignKey(); },
      [](const Play& play) { play.Mark(); },
      [](const Play& play) { play.on.Edit(play.at, play.length, play.utf8); },
      [](const Play& play) { play.on.Edit(play.at, play.length, kForeign); },
      [](const Play& play) { play.on.Mark(play.at, play.length); },
      [](const Play& play) { play.on.TakeOverIfWanted(); },
      [](const Play& play) { play.on.TakeOverIfWanted(); },
      [](const Play& play) { play.on.Draw(); },
      [](const Play& play) { play.on.Draw(); },
      [](const Play& play) { play.on.mirror.Settle(); },
  };
  return kinds;
}

rc::Gen<Step> SomeStep() {
  return rc::gen::build<Step>(
      rc::gen::set(&Step::kind, rc::gen::inRange(0, static_cast<int>(Kinds().size()))),
      rc::gen::set(&Step::at, rc::gen::inRange<Position>(0, 60)),
      rc::gen::set(&Step::length, rc::gen::inRange<Position>(0, 12)),
      rc::gen::set(&Step::text, SomeText()));
}

void CheckThatBothAgree(MirroredModel& on) {
  on.mirror.Settle();
  on.Draw();
  RC_ASSERT(on.State() == MirrorState::kInStep);
  RC_ASSERT(on.ShownText() == on.model.Text());
  RC_ASSERT(on.ShownSelection() == on.Selection());
  RC_ASSERT(on.ShownColours() == on.Colours());
}

RC_GTEST_PROP(ScintillaMirrorAgrees, AfterAnyStepsOnBothSides, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(SomeStep());
  const auto checkEach = *rc::gen::arbitrary<bool>();
  MirroredModel on;
  on.model.SetText(*SomeText());
  for (const Step& step : steps) {
    Kinds()[static_cast<std::size_t>(step.kind)](Play{on, step});
    // Looking brings a parked document up to date, so let some sequences run unseen.
    if (checkEach) CheckThatBothAgree(on);
  }
  CheckThatBothAgree(on);
}

/// A handler of the model that does something at every second change.
struct Meddler {
  MirroredModel& on;
  int kind;
  bool busy = false;
  int changes = 0;
  Subscription handler = on.model.Change.Connect([this] {
    if (busy || ++changes % 2 == 0) return;
    busy = true;
    Meddle();
    busy = false;
  });

  void Meddle() const {
    switch (kind) {
      case 0:
        on.model.SetSelText("<\x80>");
        break;
      case 1:
        on.EditByHand(0, 0, "k\xC3\xA4");
        break;
      case 2:
        on.model.Store().Paint(0, on.model.Length(), 0x0000C8);
        on.Draw();
        break;
      case 3:
        on.model.SetText("other");
        break;
      default:
        on.model.SelectByHand(0, 1);
    }
  }
};

RC_GTEST_PROP(ScintillaMirrorAgrees, WhenAHandlerOfTheModelMeddles, ()) {
  const auto steps = *rc::gen::container<std::vector<Step>>(SomeStep());
  MirroredModel on;
  on.model.SetText(*SomeText());
  {
    const Meddler meddler{on, *rc::gen::inRange(0, 5)};
    for (const Step& step : steps) {
      Kinds()[static_cast<std::size_t>(step.kind)](Play{on, step, false});
    }
  }
  CheckThatBothAgree(on);
}

}  // namespace
}  // namespace tessel
