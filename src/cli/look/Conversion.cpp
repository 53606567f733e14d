#include "cli/look/Conversion.h"

#include <utility>

#include "cli/look/DocumentSession.h"
#include "converter/Converter.h"

namespace tessel::cli {
namespace {

/// Bytes, more than a conversion inserts: so the text is never moved to a larger place.
constexpr std::size_t kRoomForConversion = 65536;

/// A string that has to grow takes twice its room; a new one takes what it is asked for.
std::string WithRoom(std::string_view bytes) {
  std::string roomy;
  roomy.reserve(bytes.size() + kRoomForConversion);
  roomy.append(bytes);
  return roomy;
}

}  // namespace

Conversion ConvertText(std::string bytes) {
  DocumentSession session;
  bytes = WithRoom(bytes);
  session.Show(std::move(bytes));
  Conversion conversion;
  session.Run([&] {
    session.Control().Run([&] {
      conversion.steps = ConvertUserCon(
          session.Editor(), session.World().pointer, session.World().messages, [] {},
          AfterFailure::kAnything);
    });
  });
  conversion.text = session.Editor().TakeText();
  return conversion;
}

}  // namespace tessel::cli
