#include "ReplyPlaces.h"

namespace scenario {
namespace {

constexpr std::array kError = {Phrase{"", "error", Says::kText}};
constexpr std::array kReplied = {Phrase{"is", "text", Says::kText},
                                 Phrase{"args", "args", Says::kTexts}};
constexpr std::array kReply = {
    Sentence{"refused", R"({"ok":false})", kError},
    Sentence{"done", R"({"ok":true})", {}},
    Sentence{"", "", kReplied},
};

constexpr std::array kMessage = {
    Phrase{"", "text", Says::kText},
    Phrase{"without an icon", "icon", Says::kNothing, R"("none")"},
    Phrase{"icon", "icon", Says::kWord},
    Phrase{"titled", "title", Says::kText},
    Phrase{"buttons", "buttons", Says::kWord},
    Phrase{"answered", "answer", Says::kWord},
};
constexpr std::array kFileDialog = {
    Phrase{"open", "kind", Says::kNothing, R"("open")"},
    Phrase{"save", "kind", Says::kNothing, R"("save")"},
    Phrase{"filter", "filter", Says::kText},
    Phrase{"in", "initDir", Says::kText},
    Phrase{"cancelled", "answer", Says::kNothing, "null"},
    Phrase{"answered", "answer", Says::kTexts},
};
constexpr std::array kStatus = {Phrase{"", "text", Says::kText}};
constexpr std::array kForm = {Phrase{"", "form", Says::kWord}, Phrase{"", "caption", Says::kText}};
constexpr std::array kOffered = {Phrase{"enabled", "enabled", Says::kValue}};
constexpr std::array kPointer = {Phrase{"becomes", "value", Says::kValue}};
constexpr std::array kFocus = {Phrase{"", "control", Says::kControl}};
constexpr std::array kEvents = {
    Sentence{"message", R"({"event":"message"})", kMessage, ", "},
    Sentence{"file dialog", R"({"event":"file dialog"})", kFileDialog, ", "},
    Sentence{"status", R"({"event":"status"})", kStatus},
    Sentence{"opens", R"({"event":"modal"})", kForm},
    Sentence{"closes", R"({"event":"modal closed"})", kForm},
    Sentence{"popup", R"({"event":"popup"})", kOffered},
    Sentence{"pointer", R"({"event":"pointer"})", kPointer},
    Sentence{"focus", R"({"event":"focus"})", kFocus},
    Sentence{"event", "", {}},
};

constexpr std::array kStateWords = {
    Phrase{"current", "current", Says::kValue}, Phrase{"selectedTab", "selectedTab", Says::kValue},
    Phrase{"conPath", "conPath", Says::kText},  Phrase{"findText", "findText", Says::kText},
    Phrase{"findPos", "findPos", Says::kValue}, Phrase{"screen pointer", "pointer", Says::kValue},
};
constexpr std::array kState = {Sentence{"", "", kStateWords, ", "}};
constexpr std::array kTabWords = {
    Phrase{"", "caption", Says::kText},
    Phrase{"at", "tag", Says::kText},
    Phrase{"unmarked", "image", Says::kNothing, R"("")"},
    Phrase{"saved", "image", Says::kNothing, R"("BlackDot")"},
    Phrase{"modified", "image", Says::kNothing, R"("RedDot")"},
};
constexpr std::array kTab = {Sentence{"tab", "", kTabWords}};
constexpr std::array kEditorWords = {
    Phrase{"in front", "left", Says::kNothing, "0"},
    Phrase{"parked", "left", Says::kNothing, "-20000"},
    Phrase{"visible", "visible", Says::kNothing, "true"},
    Phrase{"coloured", "tag", Says::kNothing, R"("COLOR")"},
    Phrase{"plain", "tag", Says::kNothing, R"("BW")"},
    Phrase{"untagged", "tag", Says::kNothing, R"("")"},
    Phrase{"file", "fileName", Says::kText},
    Phrase{"length", "length", Says::kValue},
    Phrase{"selection at", "selStart", Says::kValue},
    Phrase{"selected", "selLength", Says::kValue},
    Phrase{"can undo", "canUndo", Says::kNothing, "true"},
    Phrase{"cannot undo", "canUndo", Says::kNothing, "false"},
};
constexpr std::array kEditor = {Sentence{"editor", "", kEditorWords, ", "}};
constexpr std::array kPageWords = {
    Phrase{"in front", "left", Says::kNothing, "120"},
    Phrase{"parked", "left", Says::kNothing, "-20000"},
    Phrase{"enabled", "enabled", Says::kNothing, "true"},
    Phrase{"disabled", "enabled", Says::kNothing, "false"},
};
constexpr std::array kPage = {Sentence{"page", "", kPageWords, ", "}};
constexpr std::array kFrame = {Sentence{"frame", "", {}, ", "}};
constexpr std::array kCategory = {Sentence{"category", "", {}, ", "}};
constexpr std::array kDocumentStrip = {Sentence{"documentStrip", "", {}, ", "}};
constexpr std::array kEditorHost = {Sentence{"editorHost", "", {}, ", "}};

constexpr std::array<std::string_view, 3> kRunNames = {"start", "length", "colour"};
constexpr std::array kRunWords = {
    Phrase{"", "start", Says::kValue},
    Phrase{"", "length", Says::kValue},
    Phrase{"red", "colour", Says::kNothing, "200"},
    Phrase{"green", "colour", Says::kNothing, "32768"},
    Phrase{"blue", "colour", Says::kNothing, "12582912"},
};
constexpr std::array kRun = {Sentence{"run", "", kRunWords}};
constexpr std::array<std::string_view, 2> kEntryNames = {"key", "value"};
constexpr std::array kEntryWords = {Phrase{"", "key", Says::kText},
                                    Phrase{"=", "value", Says::kText}};
constexpr std::array kEntry = {Sentence{"entry", "", kEntryWords}};

constexpr std::array kButtonWords = {Phrase{"", "Key", Says::kText}};
constexpr std::array kButton = {Sentence{"button", "", kButtonWords, ", "}};
constexpr std::array kProperties = {Sentence{"", "", {}, ", "}};

constexpr std::array kPlaces = {
    Place{"", kReply},
    Place{"/events", kEvents, "", "no events"},
    Place{"/state", kState},
    Place{"/state/tabs", kTab, "is", "no tabs", 1},
    Place{"/state/editors", kEditor, ":", "no editors", 0},
    Place{"/state/category", kCategory, ":"},
    Place{"/state/documentStrip", kDocumentStrip, ":"},
    Place{"/state/editorHost", kEditorHost, ":"},
    Place{"/state/pages", kPage, ":", "no pages", 0},
    Place{"/state/frames", kFrame, ":", "no frames", 0},
    Place{"/runs", kRun, "", "no runs", kUnnumbered, kRunNames},
    Place{"/entries", kEntry, "", "no entries", kUnnumbered, kEntryNames},
    Place{"/value/Buttons", kButton, "", "no buttons"},
    Place{"/value", kProperties},
};

}  // namespace

std::span<const Place> ReplyPlaces() { return kPlaces; }

}  // namespace scenario
