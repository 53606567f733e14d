#include "qt/base/SelectionOwner.h"

#include <poll.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace tessel {
namespace {

using Clock = std::chrono::steady_clock;

struct Release {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  void operator()(void* reply) const { std::free(reply); }
};
using XConnection = std::unique_ptr<xcb_connection_t, Release>;
template <class T>
using XReply = std::unique_ptr<T, Release>;

xcb_atom_t AtomOf(xcb_connection_t* x, std::string_view name) {
  const auto asked = xcb_intern_atom(x, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, asked, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

bool HasOwner(xcb_connection_t* x, xcb_atom_t selection) {
  const XReply<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, selection), nullptr));
  return reply && reply->owner != XCB_NONE;
}

/// The answer goes to a window of this connection's own, which nobody sees.
void AskForFormats(xcb_connection_t* x, xcb_atom_t selection) {
  const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x)).data;
  const xcb_window_t window = xcb_generate_id(x);
  xcb_create_window(x, 0, window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                    XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_convert_selection(x, window, selection, AtomOf(x, "TARGETS"), AtomOf(x, "TESSEL_FORMATS"),
                        XCB_CURRENT_TIME);
  xcb_flush(x);
}

bool HasAnswered(xcb_connection_t* x) {
  constexpr int kSentByOthers = 0x80;
  while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(x)}) {
    if ((event->response_type & ~kSentByOthers) == XCB_SELECTION_NOTIFY) return true;
  }
  return xcb_connection_has_error(x) != 0;
}

bool AnswersUntil(xcb_connection_t* x, Clock::time_point end) {
  while (!HasAnswered(x)) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() <= 0) return false;
    pollfd waiting = {xcb_get_file_descriptor(x), POLLIN, 0};
    ::poll(&waiting, 1, static_cast<int>(left.count()));
  }
  return true;
}

bool IsOurs(QClipboard::Mode mode) {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return mode == QClipboard::Selection ? clipboard->ownsSelection() : clipboard->ownsClipboard();
}

}  // namespace

bool SelectionOwnerAnswers(QClipboard::Mode mode, std::chrono::milliseconds patience) {
  if (QGuiApplication::platformName() != QLatin1String("xcb") || IsOurs(mode)) return true;
  const auto end = Clock::now() + patience;
  const XConnection x(xcb_connect(nullptr, nullptr));
  if (xcb_connection_has_error(x.get()) != 0) return true;
  const xcb_atom_t selection =
      mode == QClipboard::Selection ? xcb_atom_t{XCB_ATOM_PRIMARY} : AtomOf(x.get(), "CLIPBOARD");
  if (!HasOwner(x.get(), selection)) return true;
  AskForFormats(x.get(), selection);
  return AnswersUntil(x.get(), end);
}

}  // namespace tessel
