// The template files that ship beside the host program.
#pragma once

#include <array>
#include <string_view>

namespace tessel {

struct Template {
  std::string_view code;  ///< key of its item in the drop-down of "FileNew"
  std::string_view file;  ///< name in the host program's directory
};

inline constexpr std::array<Template, 6> kTemplates = {{
    {"13DU", "zmuser.dat"},
    {"15AU", "zmuserp.dat"},
    {"13DD", "zmdefs.dat"},
    {"15AD", "zmdefsp.dat"},
    {"13DG", "zmgame.dat"},
    {"15AG", "zmgamep.dat"},
}};

/// The template file for a code (compared exactly); empty for any other code.
constexpr std::string_view TemplateFile(std::string_view code) {
  for (const Template& entry : kTemplates) {
    if (entry.code == code) return entry.file;
  }
  return {};
}

}  // namespace tessel
