// Whatever the bytes are and however they are edited, the reading is the naive one.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>
#include <vector>

#include "language/Script.h"
#include "support/ReadingChecks.h"

namespace tessel::language {
namespace {

using test::ReadingDifference;
using test::TextEdit;

rc::Gen<std::string> Piece(const std::string& lineBreak) {
  return rc::gen::weightedOneOf<std::string>(
      {{8, rc::gen::element<std::string>("define", "definequote", "definelevelname", "definesound",
                                         "include", "music", "gamestartup", "action", "MOVE", "ai",
                                         "state", "ends", "actor", "useractor", "enda", "{", "}",
                                         "NAME", "a.map", "-12", "x")},
       {8, rc::gen::element<std::string>(" ", " ", "\t", "  ")},
       {4, rc::gen::just(lineBreak)},
       {3, rc::gen::element<std::string>("/*", "*/", "//", "/", "*", "\r", "\n")},
       {1, rc::gen::container<std::string>(1, rc::gen::arbitrary<char>())}});
}

rc::Gen<std::string> ScriptText(std::size_t pieces, const std::string& lineBreak) {
  return rc::gen::map(rc::gen::container<std::vector<std::string>>(pieces, Piece(lineBreak)),
                      [](const std::vector<std::string>& all) {
                        std::string text;
                        for (const std::string& piece : all) text += piece;
                        return text;
                      });
}

std::string AnyLineBreak() { return *rc::gen::element<std::string>("\r\n", "\n", "\r"); }

Position AnyChunkLength() { return *rc::gen::element<Position>(1, 2, 7, 7, 40, 4096); }

TextEdit AnyEdit(const std::string& text, const std::string& lineBreak) {
  TextEdit edit;
  const Position length = std::ssize(text);
  edit.offset = *rc::gen::inRange<Position>(0, length + 1);
  const Position most = *rc::gen::element<Position>(0, 1, 2, 12, length);
  edit.removed = *rc::gen::inRange<Position>(0, std::min(most, length - edit.offset) + 1);
  edit.inserted = *rc::gen::weightedOneOf<std::string>(
      {{2, rc::gen::element<std::string>("", "/*", "*/", "//", "/", "*", "\r", "\n", "\r\n")},
       {1, ScriptText(*rc::gen::element<std::size_t>(1, 5, 20), lineBreak)}});
  return edit;
}

RC_GTEST_PROP(ScriptProperties, AWholeReadingIsTheNaiveOne, ()) {
  const std::string text = *ScriptText(*rc::gen::inRange<std::size_t>(0, 60), AnyLineBreak());
  RC_LOG() << testing::PrintToString(text);
  RC_ASSERT(ReadingDifference(Script(text, AnyChunkLength())) == "");
}

RC_GTEST_PROP(ScriptProperties, AReadingKeptUpIsAWholeOne, ()) {
  const std::string lineBreak = AnyLineBreak();
  std::string text = *ScriptText(*rc::gen::inRange<std::size_t>(0, 60), lineBreak);
  Script script(text, AnyChunkLength());
  for (int i = *rc::gen::inRange(1, 40); i > 0; --i) {
    const TextEdit edit = AnyEdit(text, lineBreak);
    const std::string before = text;
    edit.ApplyTo(text);
    script.Update(text, edit.offset, edit.removed, std::ssize(edit.inserted));
    RC_LOG() << testing::PrintToString(before) << " at " << edit.offset << " -" << edit.removed
             << " +" << testing::PrintToString(edit.inserted);
    RC_ASSERT(ReadingDifference(script) == "");
  }
}

// As a person types it, and as it comes from a slow source.
RC_GTEST_PROP(ScriptProperties, AReadingThatGrowsByteByByteIsAWholeOne, ()) {
  const std::string text = *ScriptText(*rc::gen::inRange<std::size_t>(0, 40), AnyLineBreak());
  std::string soFar;
  Script script(soFar, AnyChunkLength());
  for (const char c : text) {
    soFar += c;
    script.Update(soFar, std::ssize(soFar) - 1, 0, 1);
    RC_ASSERT(ReadingDifference(script) == "");
  }
}

}  // namespace
}  // namespace tessel::language
