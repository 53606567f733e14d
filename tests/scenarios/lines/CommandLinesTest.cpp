#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "CommandLines.h"

namespace scenario {
namespace {

struct Pair {
  const char* line;
  const char* json;
};

/// A command of each form.
constexpr Pair kPairs[] = {
    {R"(answer open "a.con" "b.con")", R"({"do":"answer","open":["a.con","b.con"]})"},
    {R"(answer open)", R"({"do":"answer","open":[]})"},
    {R"(answer open cancelled)", R"({"do":"answer","open":null})"},
    {R"(answer save "a.con")", R"({"do":"answer","save":"a.con"})"},
    {R"(answer save cancelled)", R"({"do":"answer","save":null})"},
    {R"(answer message Yes)", R"({"do":"answer","message":"Yes"})"},
    {R"(call Convert)", R"({"do":"call","method":"Convert"})"},
    {R"(call SetTesselVersion with "x" "y")",
     R"({"do":"call","method":"SetTesselVersion","args":["x","y"]})"},
    {R"(press FileOpen)", R"({"do":"click","control":"tbToolBar","key":"FileOpen"})"},
    {R"(click cmdOk)", R"({"do":"click","control":"cmdOk"})"},
    {R"(click cmdInsert(2))", R"({"do":"click","control":"cmdInsert","index":2})"},
    {R"(click tbsCon tab 3)", R"({"do":"click","control":"tbsCon","tab":3})"},
    {R"(clipboard)", R"({"do":"clipboard"})"},
    {R"(clipboard "a\r\n")", R"({"do":"clipboard","text":"a\r\n"})"},
    {R"(colours)", R"({"do":"colours"})"},
    {R"(colours editor 1)", R"({"do":"colours","index":1})"},
    {R"(dblclick lstWords 2)", R"({"do":"dblclick","control":"lstWords","entry":2})"},
    {R"(focus lstPlayers)", R"({"do":"focus","control":"lstPlayers"})"},
    {R"(get cmbweap(0))", R"({"do":"get","control":"cmbweap","index":0})"},
    {R"(key F3)", R"({"do":"key","code":114})"},
    {R"(key Ctrl+Shift+F)", R"({"do":"key","code":70,"shift":3})"},
    {R"(key code 200 shift 2)", R"({"do":"key","code":200,"shift":2})"},
    {R"(load "define A 1")", R"({"do":"load","text":"define A 1"})"},
    {R"(load editor 1 "x")", R"({"do":"load","index":1,"text":"x"})"},
    {R"(menu Tools Indent)", R"({"do":"menu","button":"Tools","key":"Indent"})"},
    {R"(menu FileNew 11)", R"({"do":"menu","button":"FileNew","item":11})"},
    {R"(menu FileNew "11")", R"({"do":"menu","button":"FileNew","key":"11"})"},
    {R"(mouse right)", R"({"do":"mouse","button":2})"},
    {R"(popup mnuRtbPopupFind)", R"({"do":"popup","item":"mnuRtbPopupFind"})"},
    {R"(quit)", R"({"do":"quit"})"},
    {R"(resize 9000 8000.5)", R"({"do":"resize","width":9000,"height":8000.5})"},
    {R"(restart)", R"({"do":"restart"})"},
    {R"(sel 4)", R"({"do":"sel","start":4})"},
    {R"(sel editor 1 4 2)", R"({"do":"sel","index":1,"start":4,"length":2})"},
    {R"(select lstPlayers 0)", R"({"do":"select","control":"lstPlayers","entry":0})"},
    {R"(state)", R"({"do":"state"})"},
    {R"(store Paths)", R"({"do":"store","section":"Paths"})"},
    {R"(store Paths set "CONPath" "c:/")",
     R"({"do":"store","section":"Paths","set":["CONPath","c:/"]})"},
    {R"(store Paths delete "conpath")", R"({"do":"store","section":"Paths","delete":"conpath"})"},
    {R"(text editor 1)", R"({"do":"text","index":1})"},
    {R"(type cmbweap(0) "33")", R"({"do":"type","control":"cmbweap","index":0,"text":"33"})"},
};

TEST(CommandLine, IsReadAsItsCommand) {
  for (const auto& [line, json] : kPairs) {
    const auto command = CommandOf(line);
    ASSERT_TRUE(command) << line;
    EXPECT_EQ(command->dump(), json) << line;
  }
}

TEST(CommandLine, IsWhatACommandIsWrittenAs) {
  for (const auto& [line, json] : kPairs) {
    EXPECT_EQ(LineOf(Json::parse(json)), line);
  }
}

TEST(CommandLine, MayHaveCommas) {
  EXPECT_EQ(CommandOf("sel 4, 2")->dump(), R"({"do":"sel","start":4,"length":2})");
}

TEST(CommandLine, KeepsMembersThatItHasNoWordsFor) {
  const Json command = Json::parse(R"({"do":"state","more":[1,{"a b":null}],"odd name":"x"})");
  EXPECT_EQ(LineOf(command), R"(state more [1,{"a b":null}] {"odd name":"x"})");
  EXPECT_EQ(CommandOf(*LineOf(command))->dump(), command.dump());
}

TEST(CommandLine, EscapesOnlyWhatCannotBeSeen) {
  const Json command = {{"do", "load"},
                        {"text",
                         "\t\x7F Stra\xC3\x9F"
                         "e \xC2\x80\xC2\xA0\"\\"}};
  EXPECT_EQ(LineOf(command),
            "load \"\\t\\u007f Stra\xC3\x9F"
            "e \\u0080\\u00a0\\\"\\\\\"");
  EXPECT_EQ(CommandOf(*LineOf(command))->dump(), command.dump());
}

TEST(CommandLine, OfAnUnknownCommandIsNone) {
  EXPECT_EQ(CommandOf("jump 3"), std::nullopt);
  EXPECT_EQ(CommandOf("stately"), std::nullopt);
  EXPECT_EQ(LineOf(Json::parse(R"({"do":"jump"})")), std::nullopt);
  EXPECT_EQ(LineOf(Json::parse(R"([1])")), std::nullopt);
}

TEST(CommandLine, SaysWhatItDoesNotUnderstand) {
  EXPECT_THROW(CommandOf("load \"no end"), std::runtime_error);
  EXPECT_THROW(CommandOf("type rtbCon \"a\" \"b\""), std::runtime_error);
  EXPECT_THROW(CommandOf("click cmdOk control \"cmdOk\""), std::runtime_error);
}

/// Texts that look like other things in a line, too.
rc::Gen<std::string> SomeText() {
  return rc::gen::oneOf(rc::gen::element<std::string>("", "~", "...", "13DU", "11", "a b", "open",
                                                      "cancelled", "tab", "cmbweap(0)", "editor",
                                                      "key", "\"", "\\", "{", "}", "a, b", "null",
                                                      "Stra\xC3\x9F"
                                                      "e",
                                                      "\xC2\x80", "$DIR/a.con", "#"),
                        rc::gen::container<std::string>(rc::gen::inRange(' ', '~')));
}

rc::Gen<Json> SomeValue() {
  return rc::gen::oneOf(
      rc::gen::map(SomeText(), [](const std::string& text) { return Json(text); }),
      rc::gen::map(rc::gen::inRange(-3, 130), [](int number) { return Json(number); }),
      rc::gen::map(rc::gen::container<std::vector<std::string>>(SomeText()),
                   [](const std::vector<std::string>& texts) { return Json(texts); }),
      rc::gen::element<Json>(nullptr, true, 0.5, Json::object(), Json{{"a", 1}}));
}

/// Any members of any command, in any order, with values of any type.
rc::Gen<Json> SomeCommand() {
  static const std::vector<std::string> kDo = {
      "answer", "call",  "click",  "clipboard", "colours", "dblclick", "focus",  "get",
      "key",    "load",  "menu",   "mouse",     "popup",   "quit",     "resize", "restart",
      "sel",    "state", "select", "store",     "text",    "type"};
  static const std::vector<std::string> kMembers = {
      "open",   "save",  "message", "method",  "args", "control", "index",  "key",
      "tab",    "text",  "entry",   "code",    "item", "shift",   "button", "width",
      "height", "start", "length",  "section", "set",  "delete",  "other",  "a b"};
  return rc::gen::exec([] {
    Json command = {{"do", *rc::gen::elementOf(kDo)}};
    for (int left = *rc::gen::inRange(0, 4); left > 0; --left) {
      command[*rc::gen::elementOf(kMembers)] = *SomeValue();
    }
    return command;
  });
}

RC_GTEST_PROP(CommandLine, SaysEveryCommandAndIsReadAsTheSame, ()) {
  const Json command = *SomeCommand();
  const auto line = LineOf(command);
  RC_ASSERT(line.has_value());
  RC_ASSERT(line->find('\n') == std::string::npos);
  RC_ASSERT(CommandOf(*line)->dump() == command.dump());
}

}  // namespace
}  // namespace scenario
