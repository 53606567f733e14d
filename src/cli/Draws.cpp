#include "cli/Draws.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "base/RuntimeError.h"
#include "cli/look/DocumentSession.h"
#include "language/Definitions.h"
#include "randomizer/frmRand.h"
#include "text/Text.h"

namespace tessel::cli {
namespace {

/// Stands for the value of an item that is skipped. It is a number: the control takes no other.
constexpr const char* kSkippedValue = "1";

// A bound of 0 makes the control change nothing: here that would look like success.
void RefuseNothing(const SectionBounds& bounds) {
  for (const std::string& bound : {bounds.lower, bounds.upper}) {
    if (bound.empty() || std::nearbyint(NumericValue(bound)) != 0) continue;
    throw RuntimeError("\"" + bound +
                       "\" counts as 0, and nothing is randomized when a bound is 0.");
  }
}

/// Presses what a person would press in the dialog of the control.
void Answer(frmRand& form, const SectionBounds& bounds, const RandomizeArguments& arguments) {
  form.cmbChoose[0].Type(bounds.lower);
  form.cmbChoose[1].Type(bounds.upper);
  if (arguments.keepBelow) form.chkLvLw.Press();
  if (arguments.keepAbove) form.chkLvUp.Press();
  form.cmdOk.Press();
}

void StartRandomizer(DocumentSession& session, const std::string& section) {
  Toolbar& toolbar = session.Controls().tbToolBar;
  if (section == "All") return toolbar.Press("RandAll");
  const int items = toolbar.MenuCount("RandSec");
  for (int item = 1; item <= items; ++item) {
    if (toolbar.MenuItem("RandSec", item).key == section) {
      return toolbar.PressMenuItem("RandSec", item);
    }
  }
}

std::string DefineLines(const std::vector<Drawn>& items) {
  std::string text;
  for (const Drawn& item : items) {
    text += "define " + item.define + " " + item.value.value_or(kSkippedValue) + "\r\n";
  }
  return text;
}

std::vector<std::string> ValuesIn(std::string_view text) {
  const language::Script script(text);
  std::vector<std::string> values;
  for (const language::Definition& definition : language::Definitions(script)) {
    values.emplace_back(script.Text(definition.value));
  }
  return values;
}

std::string DrawAroundOne(std::string_view value, int percent, float random) {
  const double present = language::NumberOf(value).value_or(0);
  const double width = std::floor(std::abs(present) * percent / 100);
  const double drawn = present - width + std::floor(static_cast<double>(random) * (2 * width + 1));
  using Limits = std::numeric_limits<std::int32_t>;
  return std::to_string(
      static_cast<std::int32_t>(std::clamp<double>(drawn, Limits::min(), Limits::max())));
}

}  // namespace

std::vector<std::string> DrawBetween(const std::vector<Drawn>& items,
                                     const RandomizeArguments& arguments) {
  DocumentSession session(arguments.seed);
  session.Show(DefineLines(items));
  for (const SectionBounds& bounds : arguments.bounds) {
    session.Forms().answer = [&](Form& form) {
      Answer(dynamic_cast<frmRand&>(form), bounds, arguments);
    };
    session.Run([&] { StartRandomizer(session, bounds.section); });
    RefuseNothing(bounds);
  }
  return ValuesIn(session.Editor().Bytes());
}

std::vector<std::string> DrawAround(const std::vector<Drawn>& items, int percent,
                                    std::uint32_t seed) {
  LinearCongruentialRandom random(seed);
  std::vector<std::string> values;
  values.reserve(items.size());
  for (const Drawn& item : items) {
    values.push_back(DrawAroundOne(item.value.value_or(kSkippedValue), percent, random.Next()));
  }
  return values;
}

}  // namespace tessel::cli
