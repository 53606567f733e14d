// Looks at what the control would take for a value, before it is believed or changed.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/look/DefineIndex.h"
#include "cli/look/PanelRead.h"
#include "language/Definitions.h"
#include "language/Script.h"

namespace tessel::cli {

/// What has a value: an item of the settings panel, or any name that a file defines.
struct WantedItem {
  std::optional<PanelItem> panel;
  std::string name;    ///< as the panel's list or the file has it
  std::string define;  ///< the name in the define line, or its beginning (see PanelItem)
};

/// What was found out about an item. A value is one only when the control and the define line agree
/// on it.
struct LookedAt {
  std::optional<language::Range> value;
  std::optional<std::int64_t> line;  ///< of the define, or of what the control takes for it
  std::optional<std::string> name;   ///< of the define, as it stands there
  std::string problem;               ///< why there is no value; empty where nothing is there
};

/// One text with all its define lines. For items of the panel it asks the panel itself what it
/// would show: the first hit in the text, which may stand in a comment or in a list. The panel is
/// shown the text as far as the define line: what stands behind it cannot be the first hit.
class ValueLook {
 public:
  /// The bytes outlive it.
  explicit ValueLook(std::string_view bytes);
  ~ValueLook();
  ValueLook(const ValueLook&) = delete;
  ValueLook& operator=(const ValueLook&) = delete;

  /// The item of a name in the panel's lists or in a define line, ASCII case ignored, or nothing.
  std::optional<WantedItem> Find(const std::string& name) const;
  /// All names that Find knows, for those who mistyped one.
  std::vector<std::string> Names() const;

  LookedAt LookAt(const WantedItem& item);
  /// The same for the define in that line, whatever the panel would show.
  LookedAt LookAtLine(const WantedItem& item, std::int64_t line) const;

  std::string_view TextOf(language::Range range) const { return script_.Text(range); }

 private:
  std::vector<language::Definition> DefinitionsOf(const WantedItem& item) const;
  std::optional<language::Range> ShownByPanel(const PanelItem& item, Position end);
  std::int64_t LineOf(Position offset) const { return script_.PlaceOf(offset).line; }
  std::string WhatIsAt(Position offset) const;
  std::optional<std::string> ListInFrontOf(const language::Definition& definition) const;
  LookedAt OnlyComplete(const language::Definition& definition) const;
  LookedAt OnlyMentioned(const std::string& name) const;
  LookedAt NotShown(const language::Definition& definition,
                    const std::optional<language::Range>& shown) const;

  language::Script script_;
  DefineIndex index_;
  std::unique_ptr<DocumentSession> panel_;  // as soon as it is asked
  Position panelEnd_ = 0;                   // how far the text is that it shows
};

}  // namespace tessel::cli
