// Two controls in one program know nothing of each other; only the settings store is one.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <optional>
#include <random>
#include <utility>
#include <vector>

#include "base/RuntimeError.h"
#include "support/PersonAtControl.h"
#include "support/RecentNames.h"
#include "words/ScriptWords.h"
#include "words/frmAddParam.h"

namespace tessel::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

using Deeds = std::vector<std::size_t>;

void FillStore(SettingsStore& settings) {
  WriteScriptWord(settings, {"cactor", "[new actor]"});
  WriteScriptWord(settings, {"move", "[moveflags]"});
  WriteScriptWord(settings, {"movie", "[number]"});
  settings.SaveSetting("PreviousCons", "OLD.CON", "/OLD.CON");
}

/// A control, and a person at it. The services may be another's too, the settings anyway.
struct Seat {
  Seat(FakeServices& services, SettingsStore& settings, const std::string& directory)
      : fakes(services),
        control({fakes.messages, fakes.fileDialogs, fakes.forms, fakes.clipboard, settings,
                 fakes.pointer, fakes.files, fakes.random, fakes.focus, fakes.loop,
                 fakes.hostDirectory}),
        person(control, fakes, directory) {
    control.Initialize();
  }

  HostedControls& C() { return control.Controls(); }
  void Open(const std::string& path) {
    fakes.files.files[path] = "define A 1\r\n";
    control.OpenFile(path);
  }
  std::vector<std::string> Recent() { return RecentNames(C().tbToolBar); }

  FakeServices& fakes;
  ucTessel control;
  Person person;
};

/// Somebody who is alone in a program.
struct Alone {
  explicit Alone(const std::string& directory) {
    FillStore(settings);
    seat.emplace(fakes, settings, directory);
  }

  FakeServices fakes;
  MemorySettingsStore settings;
  std::optional<Seat> seat;
};

/// Everything that can be seen at a seat.
std::vector<std::string> SeenAt(const Seat& seat) {
  std::vector<std::string> seen = seat.person.State();
  for (const std::string& line : seat.person.Heard()) seen.push_back("heard " + line);
  return seen;
}

/// Everything that the services of a seat have done.
std::vector<std::string> DoneFor(Seat& seat) {
  std::vector<std::string> done;
  FakeServices& f = seat.fakes;
  for (const auto& box : f.messages.shown) done.push_back(box.title + ": " + box.text);
  for (const auto& request : f.fileDialogs.requests) {
    done.push_back("dialog for " + request.fileName + " in " + request.initDir);
  }
  for (const std::string& form : f.forms.shown) done.push_back("form " + form);
  for (const auto& [path, bytes] : f.files.files) done.push_back(path + " has " + bytes);
  for (const std::string& path : f.files.written) done.push_back("wrote " + path);
  for (const auto& [control, index] : f.focus.moves) done.push_back("focus on " + control);
  done.push_back("clipboard " + f.clipboard.GetText());
  done.push_back("random numbers " + std::to_string(f.random.drawn));
  done.push_back("pointer " + std::to_string(static_cast<int>(f.pointer.Shape())));
  return done;
}

/// The first difference, or nothing.
std::string Difference(const std::vector<std::string>& got, const std::vector<std::string>& want) {
  const auto [at, wanted] = std::ranges::mismatch(got, want);
  if (at == got.end() && wanted == want.end()) return {};
  return (at == got.end() ? "nothing" : *at) + "\ninstead of\n" +
         (wanted == want.end() ? "nothing" : *wanted);
}

std::string Difference(Seat& seat, Seat& alone) {
  std::string difference = Difference(SeenAt(seat), SeenAt(alone));
  if (difference.empty()) difference = Difference(DoneFor(seat), DoneFor(alone));
  return difference;
}

/// Every deed several times, in an order that is always the same.
Deeds ManyDeeds() {
  constexpr int kTimes = 8;
  std::mt19937 order(1996);
  Deeds once(Person::Deeds().size());
  std::iota(once.begin(), once.end(), 0U);
  Deeds deeds;
  for (int time = 0; time < kTimes; ++time) {
    std::ranges::shuffle(once, order);
    deeds.insert(deeds.end(), once.begin(), once.end());
  }
  return deeds;
}

/// Two people at two controls over one store, and what becomes of each of them alone in a program.
class TwoControls : public testing::Test {
 protected:
  TwoControls() { FillStore(settings_); }

  void FirstDoes(std::size_t deed) {
    first_->person.Do(deed);
    firstAlone_.seat->person.Do(deed);
  }
  void SecondDoes(std::size_t deed) {
    second_->person.Do(deed);
    secondAlone_.seat->person.Do(deed);
  }

  MemorySettingsStore settings_;
  FakeServices firstFakes_;
  FakeServices secondFakes_;
  std::unique_ptr<Seat> first_ = MakeSeat(firstFakes_, "/first");
  std::unique_ptr<Seat> second_ = MakeSeat(secondFakes_, "/second");
  Alone firstAlone_{"/first"};
  Alone secondAlone_{"/second"};

  std::unique_ptr<Seat> MakeSeat(FakeServices& fakes, const std::string& directory) {
    if (settings_.GetAllSettings("ConWords").empty()) FillStore(settings_);
    return std::make_unique<Seat>(fakes, settings_, directory);
  }
};

// --- Nothing of one is the other's

// Else the tests below would prove nothing.
TEST_F(TwoControls, WhatAPersonDoesCanBeSeen) {
  std::vector<std::string> idle;
  for (const Person::Deed& deed : Person::Deeds()) idle.push_back(deed.name);
  for (const std::size_t deed : ManyDeeds()) {
    const auto seen = SeenAt(*first_);
    const auto done = DoneFor(*first_);
    first_->person.Do(deed);
    if (seen == SeenAt(*first_) && done == DoneFor(*first_)) continue;
    std::erase(idle, Person::Deeds()[deed].name);
  }
  EXPECT_THAT(idle, ElementsAre("sets the version"));
}

TEST_F(TwoControls, OneThatIsLeftAloneStaysAsItIs) {
  for (const std::size_t deed : ManyDeeds()) SecondDoes(deed);
  const auto before = SeenAt(*second_);
  for (const std::size_t deed : ManyDeeds()) {
    FirstDoes(deed);
    ASSERT_EQ(Difference(SeenAt(*second_), before), "")
        << "The other one " << Person::Deeds()[deed].name;
  }
  EXPECT_EQ(Difference(*first_, *firstAlone_.seat), "");
  EXPECT_EQ(Difference(*second_, *secondAlone_.seat), "");
}

// Also what cannot be seen at once (what undo takes back, where a search goes on, which words were
// matched) shows in what is done later.
RC_GTEST_FIXTURE_PROP(TwoControls, EachDoesWhatItDoesAlone, ()) {
  const auto turns = *rc::gen::container<std::vector<std::pair<bool, std::size_t>>>(rc::gen::pair(
      rc::gen::arbitrary<bool>(), rc::gen::inRange<std::size_t>(0, Person::Deeds().size())));
  for (const auto& [firsts, deed] : turns) firsts ? FirstDoes(deed) : SecondDoes(deed);
  RC_ASSERT(Difference(*first_, *firstAlone_.seat) == "");
  RC_ASSERT(Difference(*second_, *secondAlone_.seat) == "");
}

RC_GTEST_FIXTURE_PROP(TwoControls, EachDoesWhatItDoesAloneWithTheSameServices, ()) {
  const auto turns = *rc::gen::container<std::vector<std::pair<bool, std::size_t>>>(rc::gen::pair(
      rc::gen::arbitrary<bool>(), rc::gen::inRange<std::size_t>(0, Person::Deeds().size())));
  Seat first(firstFakes_, settings_, "/first");
  Seat second(firstFakes_, settings_, "/second");
  for (const auto& [firsts, deed] : turns) {
    if (Person::Deeds()[deed].ofTheServices) continue;
    (firsts ? first : second).person.Do(deed);
    (firsts ? firstAlone_ : secondAlone_).seat->person.Do(deed);
    RC_ASSERT(firstFakes_.pointer.Shape() == PointerShape::kDefault);
  }
  RC_ASSERT(Difference(SeenAt(first), SeenAt(*firstAlone_.seat)) == "");
  RC_ASSERT(Difference(SeenAt(second), SeenAt(*secondAlone_.seat)) == "");
}

// --- While one waits for its user, the other goes on

/// Calls `meanwhile` in every form, message box and file dialog of a seat, and whenever its
/// randomizer lets the windows paint.
std::vector<Subscription> InEveryPause(Seat& seat, const std::function<void()>& meanwhile) {
  seat.fakes.messages.meanwhile = meanwhile;
  seat.fakes.fileDialogs.meanwhile = meanwhile;
  seat.fakes.loop.meanwhile = meanwhile;
  std::vector<Subscription> forms;
  for (Form* form : seat.control.Forms()) {
    forms.push_back(form->Refresh.Connect([form, meanwhile] {
      if (form->Visible()) meanwhile();
    }));
  }
  return forms;
}

TEST_F(TwoControls, OneGoesOnWhileTheOtherWaits) {
  const Deeds deeds = ManyDeeds();
  std::size_t pauses = 0;
  const auto subscriptions =
      InEveryPause(*first_, [&] { SecondDoes(deeds[pauses++ % deeds.size()]); });
  for (const std::size_t deed : deeds) FirstDoes(deed);
  EXPECT_GT(pauses, Person::Deeds().size());
  EXPECT_EQ(Difference(*first_, *firstAlone_.seat), "");
  EXPECT_EQ(Difference(*second_, *secondAlone_.seat), "");
}

TEST_F(TwoControls, AFormOfEachCanBeOpen) {
  const auto lookFor = [](Seat& seat, const std::string& text, const std::function<void()>& then) {
    seat.fakes.forms.scripts.push_back([text, then](Form& form) {
      auto& find = dynamic_cast<frmFind&>(form);
      find.cboFind.Type(text);
      then();
      find.cmdFind.Press();
    });
    seat.C().tbToolBar.Press("Find");
  };
  first_->Open("/first/a.con");
  second_->Open("/second/b.con");
  lookFor(*first_, "define", [&] {
    EXPECT_FALSE(first_->control.Running());
    lookFor(*second_, "A", [&] { EXPECT_TRUE(first_->control.Forms()[0]->Visible()); });
    EXPECT_FALSE(second_->control.Forms()[0]->Visible());
    EXPECT_TRUE(first_->control.Forms()[0]->Visible());
    EXPECT_EQ(CurrentEditor(first_->C()).SelText(), "");
  });
  EXPECT_EQ(CurrentEditor(first_->C()).SelText(), "define");
  EXPECT_EQ(CurrentEditor(second_->C()).SelText(), "A");
  EXPECT_EQ(first_->control.LastSearch().FindText, "define");
  EXPECT_EQ(second_->control.LastSearch().FindText, "A");
}

TEST_F(TwoControls, AnErrorOfOneIsShownByItAlone) {
  first_->control.Run([&] {
    second_->control.Run([] { throw RuntimeError("It went wrong."); });
    EXPECT_EQ(secondFakes_.messages.shown.size(), 1U);
    EXPECT_TRUE(first_->control.Running());
    EXPECT_FALSE(second_->control.Running());
  });
  EXPECT_THAT(firstFakes_.messages.shown, IsEmpty());
}

// --- One goes, the other stays

RC_GTEST_FIXTURE_PROP(TwoControls, OneStaysWhenTheOtherGoes, ()) {
  const auto deed = rc::gen::inRange<std::size_t>(0, Person::Deeds().size());
  for (const std::size_t d : *rc::gen::container<Deeds>(deed)) SecondDoes(d);
  const auto before = *rc::gen::container<Deeds>(deed);
  const auto after = *rc::gen::container<Deeds>(deed);
  for (const std::size_t d : before) FirstDoes(d);
  second_.reset();
  for (const std::size_t d : after) FirstDoes(d);
  RC_ASSERT(Difference(*first_, *firstAlone_.seat) == "");
}

TEST_F(TwoControls, OneMayGoWhileAFormOfTheOtherIsOpen) {
  const auto subscriptions = InEveryPause(*first_, [&] { second_.reset(); });
  for (const std::size_t deed : ManyDeeds()) FirstDoes(deed);
  EXPECT_EQ(second_, nullptr);
  EXPECT_EQ(Difference(*first_, *firstAlone_.seat), "");
}

// --- The store is one, and each reads it at its own times

TEST_F(TwoControls, ReadTheRecentFilesWhenTheyStart) {
  first_->Open("/first/new.con");
  EXPECT_THAT(first_->Recent(), ElementsAre("new.con", "OLD.CON"));
  EXPECT_THAT(second_->Recent(), ElementsAre("OLD.CON"));
  second_->Open("/second/other.con");
  EXPECT_THAT(first_->Recent(), ElementsAre("new.con", "OLD.CON"));
  EXPECT_THAT(second_->Recent(), ElementsAre("other.con", "OLD.CON"));
  FakeServices fakes;
  EXPECT_THAT(Seat(fakes, settings_, "/third").Recent(),
              ElementsAre("OTHER.CON", "NEW.CON", "OLD.CON"));
}

TEST_F(TwoControls, EachDropsItsOwnOldestRecentFile) {
  for (const std::string name : {"B", "C", "D", "E"}) {
    settings_.SaveSetting("PreviousCons", name, "/" + name);
  }
  first_ = MakeSeat(firstFakes_, "/first");
  second_ = MakeSeat(secondFakes_, "/second");
  first_->Open("/first/x.con");
  EXPECT_THAT(first_->Recent(), ElementsAre("x.con", "E", "D", "C", "B"));
  EXPECT_THAT(second_->Recent(), ElementsAre("E", "D", "C", "B", "OLD.CON"));
  EXPECT_EQ(settings_.GetSetting("PreviousCons", "OLD.CON"), std::nullopt);
  second_->Open("/second/y.con");  // its oldest one is not in the store any more
  EXPECT_THAT(second_->Recent(), ElementsAre("y.con", "E", "D", "C", "B"));
  EXPECT_THAT(secondFakes_.messages.shown, IsEmpty());
  FakeServices fakes;
  EXPECT_THAT(Seat(fakes, settings_, "/third").Recent(),
              ElementsAre("Y.CON", "X.CON", "E", "D", "C"));
}

/// What a person does in the word list.
std::function<void(Form&)> AtWordList(void (*script)(frmAddParam& form)) {
  return [script](Form& form) { script(dynamic_cast<frmAddParam&>(form)); };
}

TEST_F(TwoControls, ReadTheWordsWhenTheyStartAndWithTheWordList) {
  first_->C().txtSearch.Type("new");
  firstFakes_.forms.scripts.push_back(AtWordList([](frmAddParam& form) {
    form.txtParam.Type("newword");
    form.txtParams.Type("[anything]");
    form.cmdSave.Press();
  }));
  first_->C().cmdAddword.Press();
  EXPECT_THAT(first_->C().lstWords.List(), ElementsAre("cactor", "move", "movie", "newword"));
  EXPECT_THAT(second_->C().lstWords.List(), ElementsAre("cactor", "move", "movie"));
  second_->C().txtSearch.Type("newword");
  EXPECT_EQ(second_->C().lstWords.ListIndex(), 0);  // nothing like it

  secondFakes_.forms.scripts.push_back(AtWordList([](frmAddParam& form) {
    EXPECT_THAT(form.lstWords.List(), ElementsAre("cactor", "move", "movie", "newword"));
    form.lstWords.Pick(3);
    EXPECT_EQ(form.txtParams.Text(), "[anything]");
  }));
  second_->C().cmdAddword.Press();
  EXPECT_THAT(second_->C().lstWords.List(), ElementsAre("cactor", "move", "movie", "newword"));
  EXPECT_EQ(second_->C().lblParams.Caption(), "[anything]");
}

TEST_F(TwoControls, BothMayDeleteTheSameWord) {
  const auto deleteMove = AtWordList([](frmAddParam& form) {
    form.lstWords.Pick(1);
    form.cmdDelete.Press();
  });
  firstFakes_.messages.answers = {MessageAnswer::kYes};
  secondFakes_.messages.answers = {MessageAnswer::kYes};
  first_->C().txtSearch.Type("move");
  second_->C().txtSearch.Type("move");
  firstFakes_.forms.scripts.push_back([&](Form& form) {  // the second one's list is as old as this
    secondFakes_.forms.scripts.push_back(deleteMove);
    second_->C().cmdAddword.Press();
    EXPECT_THAT(dynamic_cast<frmAddParam&>(form).lstWords.List(), Contains("move"));
    deleteMove(form);
  });
  first_->C().cmdAddword.Press();
  EXPECT_THAT(first_->C().lstWords.List(), ElementsAre("cactor", "movie"));
  EXPECT_THAT(second_->C().lstWords.List(), ElementsAre("cactor", "movie"));
  EXPECT_EQ(firstFakes_.messages.shown.size(), 1U);
  EXPECT_EQ(secondFakes_.messages.shown.size(), 1U);
}

TEST_F(TwoControls, ReadTheDialogsDirectoryWhenTheyStart) {
  settings_.SaveSetting("Paths", "CONPath", "/cons");
  EXPECT_EQ(first_->control.CONPath(), "/host");
  FakeServices fakes;
  EXPECT_EQ(Seat(fakes, settings_, "/third").control.CONPath(), "/cons");
}

}  // namespace
}  // namespace tessel::test
