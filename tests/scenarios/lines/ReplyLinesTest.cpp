#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "ReplyLines.h"

namespace scenario {
namespace {

using testing::ElementsAre;
using Lines = std::vector<std::string>;

Expectations Read(const Lines& lines) {
  Expectations read;
  for (const std::string& line : lines) read.AddLine(line);
  return read;
}

struct Case {
  const char* json;
  Lines lines;
};

const std::vector<Case>& Cases() {
  static const std::vector<Case> kCases = {
      {R"({"ok":false})", {"refused"}},
      {R"({"ok":false,"error":"disabled"})", {R"(refused "disabled")"}},
      {R"({"ok":true,"events":[]})", {"done", "no events"}},
      {R"({"text":"a\r\n"})", {R"(is "a\r\n")"}},
      {R"({"args":["x","y"]})", {R"(args "x" "y")"}},
      {R"({"runs":[[0,6,200],[9,2,32768],[12,1,12582912],[14,1,255]]})",
       {"run 0 6 red", "run 9 2 green", "run 12 1 blue", "run 14 1 colour 255"}},
      {R"({"entries":[["A.CON","c:/a.con"]]})", {R"(entry "A.CON" = "c:/a.con")"}},
      {R"({"entries":[]})", {"no entries"}},
      {R"({"value":{"Enabled":true,"Text":"100","ListIndex":-1}})",
       {R"(Enabled true, Text "100", ListIndex -1)"}},
      {R"({"value":{"Buttons":["...",{"Key":"RandSec","Enabled":true},"..."]}})",
       {"button ...", R"(button "RandSec", Enabled true)", "button ..."}},
      {R"({"state":{"current":0,"tabs":[{"caption":"b.con","tag":"/b.con","image":"BlackDot"},
          {"image":"RedDot"},"~"]}})",
       {"current 0", R"(tab 1 is "b.con" at "/b.con" saved)", "tab 2 is modified", "tab 3 is any"}},
      {R"({"state":{"editors":[{"left":0,"visible":true,"tag":"COLOR","selStart":4,"selLength":2},
          {"left":-20000,"canUndo":false}]}})",
       {"editor 0: in front, visible, coloured, selection at 4, selected 2",
        "editor 1: parked, cannot undo"}},
      {R"({"state":{"category":{"selected":1,"top":420},"pages":[{"left":120,"enabled":true}]}})",
       {"category: selected 1, top 420", "page 0: in front, enabled"}},
      {R"({"events":[{"event":"pointer","value":11},
          {"event":"message","text":"Sure?","icon":"none","buttons":"YesNo","answer":"No"},
          {"event":"file dialog","kind":"save","answer":null},
          {"event":"file dialog","answer":["a.con"]},{"event":"status","text":"Ready"},
          {"event":"modal","form":"frmFind","caption":"Find"},
          {"event":"modal closed","form":"frmFind"},{"event":"popup"},
          {"event":"focus","control":"txtParam","index":0}]})",
       {"pointer becomes 11", R"(message "Sure?", without an icon, buttons YesNo, answered No)",
        "file dialog save, cancelled", R"(file dialog answered "a.con")", R"(status "Ready")",
        R"(opens frmFind "Find")", "closes frmFind", "popup", "focus txtParam(0)"}},
  };
  return kCases;
}

TEST(ExpectedLines, AreReadAsWhatTheReplyMustHold) {
  for (const Case& one : Cases()) {
    const Expectations read = Read(one.lines);
    ASSERT_EQ(read.All().size(), 1U) << one.json;
    EXPECT_EQ(nlohmann::json(read.All().front()), nlohmann::json::parse(one.json));
  }
}

TEST(ExpectedLines, SayWhatTheReplyMustHold) {
  for (const Case& one : Cases()) EXPECT_EQ(LinesOf(Json::parse(one.json)), one.lines);
}

TEST(ExpectedLines, SayTheRestInBraces) {
  const Json expected = Json::parse(R"({"new":{"a":1},"text":"x","state":{"other":2}})");
  EXPECT_THAT(LinesOf(expected),
              ElementsAre(R"(is "x")", R"({"new":{"a":1},"state":{"other":2}})"));
}

TEST(ExpectedLines, SayTwiceWhatMustHoldTwice) {
  const Expectations read = Read({R"(is "~one")", R"(is "~two")"});
  EXPECT_THAT(read.All(), ElementsAre(Json{{"text", "~one"}}, Json{{"text", "~two"}}));
}

TEST(ExpectedLines, NumberWhatTheyList) {
  EXPECT_THROW(Read({"tab 2 is saved"}), std::runtime_error);
  EXPECT_THROW(Read({"tab 1 is saved", "tab 3 is saved"}), std::runtime_error);
  EXPECT_THROW(Read({"editor 1: parked"}), std::runtime_error);
}

TEST(ExpectedLines, ThatNobodyUnderstandsAreMistakes) {
  EXPECT_THROW(Read({"tab 1 is blue"}), std::runtime_error);
  EXPECT_THROW(Read({"nonsense"}), std::runtime_error);
  EXPECT_THROW(Read({R"(message "never ends)"}), std::runtime_error);
}

rc::Gen<Json> SomeScalar() {
  return rc::gen::oneOf(
      rc::gen::element<Json>("", "~", "...", "a b", "Yes", "any", "open", "BlackDot", "COLOR", "\"",
                             "100", 0, 1, -20000, 120, 200, 32768, true, false, nullptr, 0.5),
      rc::gen::element<Json>(Json::array(), Json::object(), Json::array({"a", "b"}),
                             Json::array({0, 6, 200}), Json{{"left", 0}}));
}

rc::Gen<Json> SomeMembers(const std::vector<std::string>& names) {
  return rc::gen::exec([names] {
    Json object = Json::object();
    for (int left = *rc::gen::inRange(0, 4); left > 0; --left) {
      object[*rc::gen::elementOf(names)] = *SomeScalar();
    }
    return object;
  });
}

rc::Gen<Json> SomeList(const std::vector<std::string>& names) {
  return rc::gen::map(rc::gen::container<std::vector<Json>>(rc::gen::oneOf(
                          SomeMembers(names), rc::gen::element<Json>("~", "..."), SomeScalar())),
                      [](const std::vector<Json>& elements) { return Json(elements); });
}

/// Whatever a reply may hold, and things that none holds.
rc::Gen<Json> SomeExpectation() {
  return rc::gen::exec([] {
    const std::vector<std::string> event = {"event", "text", "icon", "form", "kind", "answer"};
    const std::vector<std::string> tab = {"caption", "tag", "image", "left", "selStart", "other"};
    const std::vector<std::string> button = {"Key", "Menu", "Enabled"};
    Json expected = *SomeMembers({"ok", "error", "text", "args", "events", "runs", "entries",
                                  "state", "value", "other", "a b"});
    if (*rc::gen::arbitrary<bool>()) expected["events"] = *SomeList(event);
    if (*rc::gen::arbitrary<bool>()) {
      expected["state"] = *SomeMembers({"current", "findText", "pointer", "category", "other"});
      expected["state"]["tabs"] = *SomeList(tab);
      expected["state"]["editors"] = *SomeList(tab);
    }
    if (*rc::gen::arbitrary<bool>()) {
      expected["value"] = *SomeMembers({"Text", "Enabled", "List", "lower"});
      expected["value"]["Buttons"] = *SomeList(button);
    }
    return expected;
  });
}

RC_GTEST_PROP(ExpectedLines, SayEveryReplyAndAreReadAsTheSame, ()) {
  const Json expected = *SomeExpectation();
  RC_PRE(!expected.empty());
  const Expectations read = Read(LinesOf(expected));
  RC_ASSERT(read.All().size() == 1U);
  RC_ASSERT(SameValue(read.All().front(), expected));
}

}  // namespace
}  // namespace scenario
