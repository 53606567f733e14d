#include "host/script/LevelTitles.h"

#include <map>

#include "language/Levels.h"

namespace tessel {

std::vector<std::string> TitlesOfLevels(const language::Script& script,
                                        const std::vector<std::string>& entries) {
  std::multimap<std::string, std::string> titles;  // those of one level in the order of the text
  for (const language::Level& level : language::Levels(script)) {
    titles.emplace(
        std::string(script.Text(level.episode)) + " " + std::string(script.Text(level.number)),
        script.Text(level.title));
  }
  std::vector<std::string> found;
  found.reserve(entries.size());
  for (const std::string& entry : entries) {
    const auto title = titles.find(entry);
    found.push_back(title == titles.end() ? std::string() : title->second);
    if (title != titles.end()) titles.erase(title);
  }
  return found;
}

}  // namespace tessel
