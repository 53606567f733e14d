// A program that has the clipboard of an X display, and hangs where a test wants it to.
#pragma once

#include <poll.h>
#include <xcb/xcb.h>

#include <QTest>
#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <thread>

namespace tessel::test {

enum class Hangs {
  kAtOnce,
  kAfterItsFormats,
  kHalfWay,  ///< when half of the text is given
  kNever,
  kDrips  ///< gives a byte every tenth of a second
};

/// Has the clipboard (or the selection) from its making to its end, on a thread with a connection
/// of its own. It gives its text in pieces, as owners of large texts do.
class ScriptedOwner {
 public:
  ScriptedOwner(std::string_view selection, Hangs hangs, std::string text = "text of another")
      : hangs_(hangs), text_(std::move(text)) {
    const auto* screen = xcb_setup_roots_iterator(xcb_get_setup(x_.get())).data;
    xcb_create_window(x_.get(), 0, window_, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(x_.get(), window_, Atom(selection), XCB_CURRENT_TIME);
    std::free(xcb_get_input_focus_reply(x_.get(), xcb_get_input_focus(x_.get()), nullptr));
    thread_ = std::thread([this] { Work(); });
    QTest::qWait(200);  // the toolkit has heard of it
  }
  ~ScriptedOwner() {
    ending_ = true;
    thread_.join();
  }
  ScriptedOwner(const ScriptedOwner&) = delete;
  ScriptedOwner& operator=(const ScriptedOwner&) = delete;

 private:
  static constexpr std::size_t kPiece = std::size_t{1} << 18U;

  xcb_atom_t Atom(std::string_view name) {
    const auto asked =
        xcb_intern_atom(x_.get(), 0, static_cast<std::uint16_t>(name.size()), name.data());
    auto* reply = xcb_intern_atom_reply(x_.get(), asked, nullptr);
    const xcb_atom_t atom = reply->atom;
    std::free(reply);
    return atom;
  }

  void Work() {
    while (!ending_) {
      pollfd waiting = {xcb_get_file_descriptor(x_.get()), POLLIN, 0};
      ::poll(&waiting, 1, 10);
      while (xcb_generic_event_t* event = xcb_poll_for_event(x_.get())) {
        See(*event);
        std::free(event);
      }
    }
  }
  void See(const xcb_generic_event_t& event) {
    if (event.response_type == XCB_SELECTION_REQUEST && hangs_ != Hangs::kAtOnce) {
      Answer(reinterpret_cast<const xcb_selection_request_event_t&>(event));
    } else if (event.response_type == XCB_PROPERTY_NOTIFY) {
      const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(event);
      const bool taken = changed.state == XCB_PROPERTY_DELETE && changed.window == requestor_ &&
                         changed.atom == property_;
      if (taken) GivePiece();
    }
    xcb_flush(x_.get());
  }

  void Answer(const xcb_selection_request_event_t& asked) {
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.requestor = asked.requestor;
    answer.selection = asked.selection;
    answer.target = asked.target;
    if (asked.target == targets_) {
      const std::array<xcb_atom_t, 3> formats = {targets_, Atom("TIMESTAMP"), utf8_};
      Put(asked, XCB_ATOM_ATOM, 32, formats.size(), formats.data());
      answer.property = asked.property;
    } else if (hangs_ == Hangs::kAfterItsFormats) {
      return;
    } else if (asked.target == utf8_) {
      Begin(asked);
      answer.property = asked.property;
    }
    xcb_send_event(x_.get(), 0, asked.requestor, 0, reinterpret_cast<const char*>(&answer));
  }
  void Put(const xcb_selection_request_event_t& asked, xcb_atom_t type, std::uint8_t bits,
           std::size_t count, const void* data) {
    xcb_change_property(x_.get(), XCB_PROP_MODE_REPLACE, asked.requestor, asked.property, type,
                        bits, static_cast<std::uint32_t>(count), data);
  }
  void Begin(const xcb_selection_request_event_t& asked) {
    requestor_ = asked.requestor;
    property_ = asked.property;
    given_ = 0;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(x_.get(), requestor_, XCB_CW_EVENT_MASK, &events);
    const auto size = static_cast<std::uint32_t>(text_.size());
    Put(asked, inPieces_, 32, 1, &size);
  }
  void GivePiece() {
    if (hangs_ == Hangs::kHalfWay && given_ > text_.size() / 2) return;
    if (hangs_ == Hangs::kDrips) std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const std::size_t most = hangs_ == Hangs::kDrips ? 1 : kPiece;
    const std::size_t count = std::min(most, text_.size() - given_);
    xcb_change_property(x_.get(), XCB_PROP_MODE_REPLACE, requestor_, property_, utf8_, 8,
                        static_cast<std::uint32_t>(count), text_.data() + given_);
    if (count == 0) requestor_ = XCB_NONE;
    given_ += count;
  }

  std::unique_ptr<xcb_connection_t, decltype(&xcb_disconnect)> x_{xcb_connect(nullptr, nullptr),
                                                                  &xcb_disconnect};
  xcb_window_t window_ = xcb_generate_id(x_.get());
  xcb_atom_t targets_ = Atom("TARGETS");
  xcb_atom_t utf8_ = Atom("UTF8_STRING");
  xcb_atom_t inPieces_ = Atom("INCR");
  Hangs hangs_;
  std::string text_;

  xcb_window_t requestor_ = XCB_NONE;
  xcb_atom_t property_ = XCB_NONE;
  std::size_t given_ = 0;

  std::atomic<bool> ending_ = false;
  std::thread thread_;
};

}  // namespace tessel::test
