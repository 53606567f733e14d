#include "cli/values/ValuePage.h"

#include <toml++/toml.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>

#include "base/RuntimeError.h"
#include "cli/look/LevelName.h"
#include "language/Definitions.h"
#include "text/SafeText.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

using nlohmann::json;

[[noreturn]] void Refuse(const std::string& page, const std::string& reason) {
  throw RuntimeError(page + ": " + reason);
}

std::string BytesOf(const std::string& utf8, const std::string& page) {
  if (auto bytes = FromTerminal(utf8)) return *bytes;
  Refuse(page, "\"" + utf8 + "\" has a character that a CON file cannot hold.");
}

/// The name as files have it: of a level "0 7", whatever of its spellings the page has.
std::string NameInFiles(ValueKind kind, const std::string& name, const std::string& page) {
  if (kind == ValueKind::kDefine || kind == ValueKind::kSound) return BytesOf(name, page);
  if (kind == ValueKind::kLevel) {
    const auto level = ParseLevelName(name);
    if (!level) Refuse(page, "\"" + name + "\" is no level: write \"0 7\", \"0/7\" or E1L8.");
    return TextOf(*level);
  }
  const auto number = language::NumberOf(name);
  if (!number) Refuse(page, "\"" + name + "\" is no number.");
  return std::to_string(*number);
}

const ValueKindNames* KindBy(std::string_view ValueKindNames::*member, std::string_view word) {
  const auto* const found = std::ranges::find(kValueKinds, word, member);
  return found == kValueKinds.end() ? nullptr : found;
}

// --- TOML

class TomlReader {
 public:
  explicit TomlReader(const std::string& page) : page_(page) {}

  std::vector<PageValue> Read(std::string_view text) {
    try {
      const toml::table table = toml::parse(text);
      for (const auto& [section, node] : table) ReadSection(std::string(section.str()), node);
    } catch (const toml::parse_error& error) {
      Refuse(page_, "Line " + std::to_string(error.source().begin.line) +
                        " is not TOML: " + std::string(error.description()) + ".");
    }
    return std::move(values_);
  }

 private:
  void ReadSection(const std::string& section, const toml::node& node) {
    const ValueKindNames* names = KindBy(&ValueKindNames::section, section);
    if (names == nullptr || !node.is_table()) {
      Refuse(page_,
             "[" + section +
                 "] is none of [values], [levels], [quotes], [volumes], [skills], [sounds].");
    }
    for (const auto& [name, value] : *node.as_table()) {
      ReadName(*names, std::string(name.str()), value);
    }
  }

  void ReadName(const ValueKindNames& names, const std::string& name, const toml::node& node) {
    const std::string inFiles = NameInFiles(names.kind, name, page_);
    if (!names.onlyField.empty()) {
      values_.push_back(
          {{names.kind, inFiles, std::string(names.onlyField)}, TextOfNode(name, node)});
      return;
    }
    if (!node.is_table()) Refuse(page_, "\"" + name + "\" is no table of fields.");
    for (const auto& [field, value] : *node.as_table()) {
      values_.push_back({{names.kind, inFiles, std::string(field.str())}, TextOfNode(name, value)});
    }
  }

  std::string TextOfNode(const std::string& name, const toml::node& node) const {
    if (const auto number = node.value_exact<std::int64_t>()) return std::to_string(*number);
    if (const auto text = node.value_exact<std::string>()) return BytesOf(*text, page_);
    Refuse(page_, "\"" + name + "\" is neither a whole number nor a text.");
  }

  const std::string& page_;
  std::vector<PageValue> values_;
};

std::string TomlString(const std::string& utf8) {
  std::ostringstream text;
  text << '"';
  for (const char c : utf8) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      text << '\\' << c;
    } else if (byte < 0x20 || byte == 0x7F) {
      constexpr std::string_view kDigits = "0123456789ABCDEF";
      text << "\\u00" << kDigits[byte / 16] << kDigits[byte % 16];
    } else {
      text << c;
    }
  }
  text << '"';
  return text.str();
}

/// A number that TOML writes just so is one.
std::string TomlValue(const std::string& bytes) {
  const auto number = language::NumberOf(bytes);
  return number && std::to_string(*number) == bytes ? bytes : TomlString(ToUtf8(bytes));
}

// --- JSON

/// Which member of a row has which value.
struct JsonValue {
  std::string_view command;
  ValueKind kind;
  const char* name;
  const char* field;   // the name of the field in files
  const char* member;  // of the row
};
constexpr std::array<JsonValue, 6> kJsonValues = {
    {{"settings", ValueKind::kDefine, "define", "value", "value"},
     {"get", ValueKind::kDefine, "define", "value", "value"},
     {"levels", ValueKind::kLevel, "level", "map", "map"},
     {"levels", ValueKind::kLevel, "level", "par", "par"},
     {"levels", ValueKind::kLevel, "level", "record", "record"},
     {"levels", ValueKind::kLevel, "level", "title", "title"}}};

class JsonReader {
 public:
  explicit JsonReader(const std::string& page) : page_(page) {}

  std::vector<PageValue> Read(std::string_view text) {
    try {
      const json report = json::parse(text);
      if (report.value("schema", "") != "tessel-report") Refuse(page_, "It is no report.");
      command_ = report.at("command");
      for (const json& file : report.at("files")) {
        for (const json& row : file.at("rows")) ReadRow(row);
      }
    } catch (const json::exception&) {
      Refuse(page_, "It is no report in JSON.");
    }
    return std::move(values_);
  }

 private:
  void ReadRow(const json& row) {
    if (command_ == "diff") return ReadDifference(row);
    bool known = false;
    for (const JsonValue& value : kJsonValues) {
      if (value.command != command_) continue;
      known = true;
      Add(value.kind, row.at(value.name), value.field, row.at(value.member));
    }
    if (!known) Refuse(page_, "A report of \"" + command_ + "\" has no values to apply.");
  }

  void ReadDifference(const json& row) {
    const ValueKindNames* names = KindBy(&ValueKindNames::word, row.at("kind").get<std::string>());
    if (names == nullptr) Refuse(page_, "It has a value of no known kind.");
    Add(names->kind, row.at("name"), row.at("field"), row.at("new"));
  }

  void Add(ValueKind kind, const std::string& name, const std::string& field, const json& text) {
    if (text.is_null()) return;
    values_.push_back(
        {{kind, NameInFiles(kind, name, page_), field}, BytesOf(text.get<std::string>(), page_)});
  }

  const std::string& page_;
  std::string command_;
  std::vector<PageValue> values_;
};

}  // namespace

std::vector<PageValue> ParsePage(std::string_view text, const std::string& name) {
  const std::size_t first = text.find_first_not_of(" \t\r\n");
  const bool isJson = first != text.npos && text[first] == '{';
  return isJson ? JsonReader(name).Read(text) : TomlReader(name).Read(text);
}

std::string PageAsToml(const std::vector<PageValue>& values) {
  std::string page;
  for (const ValueKindNames& names : kValueKinds) {
    std::string lines, table;
    for (const PageValue& value : values) {
      if (value.name.kind != names.kind) continue;
      const std::string name = TomlString(ToUtf8(value.name.name));
      const std::string heading =
          "[" + std::string(names.section) + (names.onlyField.empty() ? "." + name : "") + "]\n";
      if (heading != table) {
        lines += (page.empty() && lines.empty() ? "" : "\n") + heading;
        table = heading;
      }
      lines += (names.onlyField.empty() ? value.name.field : name) + " = " + TomlValue(value.text) +
               "\n";
    }
    page += lines;
  }
  return page;
}

}  // namespace tessel::cli
