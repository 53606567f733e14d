// The fields of a command, checked.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "drive/Json.h"

namespace tessel::drive {

/// Reads the fields of one command. Every function ends the command with a Refusal that names the
/// field when it is missing (unless it is optional) or of the wrong type. Fields that nobody asks
/// for are ignored.
class Fields {
 public:
  explicit Fields(Json command) : command_(std::move(command)) {}

  bool Has(std::string_view name) const { return command_.contains(name); }
  const Json& At(std::string_view name) const;

  std::string Text(std::string_view name) const;
  std::optional<std::string> OptionalText(std::string_view name) const;
  int Whole(std::string_view name) const;
  std::optional<int> OptionalWhole(std::string_view name) const;
  /// A number in [0, limit].
  double Size(std::string_view name, double limit) const;
  /// An array of texts.
  std::vector<std::string> Texts(std::string_view name) const;

 private:
  Json command_;
};

}  // namespace tessel::drive
