#include "cli/Json.h"

#include <nlohmann/json.hpp>

#include "text/SafeText.h"

namespace tessel::cli {

using Json = nlohmann::ordered_json;

std::string JsonText(const std::vector<JsonObject>& list) {
  Json json = Json::array();
  for (const JsonObject& object : list) {
    Json& members = json.emplace_back(Json::object());
    for (const auto& [name, text] : object) members[name] = text ? Json(*text) : Json();
  }
  return JsonForTerminal(json.dump(2));
}

std::string JsonText(const std::vector<std::array<std::int64_t, 3>>& list) {
  return Json(list).dump();
}

}  // namespace tessel::cli
