#include "qt/base/SelectionOwner.h"

#include <poll.h>
#include <xcb/xcb.h>

#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "qt/base/Windows1252Qt.h"

namespace tessel {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

struct Release {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  void operator()(void* reply) const { std::free(reply); }
};
using XConnection = std::unique_ptr<xcb_connection_t, Release>;
template <class T>
using XReply = std::unique_ptr<T, Release>;

/// What a format of the owner's is as mime data. The first that it has is asked for.
struct TextFormat {
  std::string_view target;
  const char* mime;
  bool isLatin1 = false;
};
constexpr std::array kTextFormats = {
    TextFormat{kBytesFormat, kBytesFormat},
    TextFormat{"text/plain;charset=utf-8", "text/plain"},
    TextFormat{"UTF8_STRING", "text/plain"},
    TextFormat{"text/plain", "text/plain"},
    TextFormat{"STRING", "text/plain", true},
    TextFormat{"TEXT", "text/plain", true},
    TextFormat{"text/uri-list", "text/uri-list"},
};
constexpr const char* kSomethingElse = "application/x-something-else";

xcb_atom_t AtomOf(xcb_connection_t* x, std::string_view name) {
  const auto asked = xcb_intern_atom(x, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(x, asked, nullptr));
  return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

/// Formats that say something of the others have no slash.
bool IsContent(xcb_connection_t* x, xcb_atom_t format) {
  const XReply<xcb_get_atom_name_reply_t> reply(
      xcb_get_atom_name_reply(x, xcb_get_atom_name(x, format), nullptr));
  if (!reply) return false;
  const std::string_view name(xcb_get_atom_name_name(reply.get()),
                              static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())));
  return name.find('/') != name.npos;
}

bool HasOwner(xcb_connection_t* x, xcb_atom_t selection) {
  const XReply<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, selection), nullptr));
  return reply && reply->owner != XCB_NONE;
}

/// Until when an owner is waited for: every piece earns it some time, but no more than a slow one
/// would need.
class Patience {
 public:
  Clock::time_point End() const { return std::min(fromLastPiece_, fromStart_); }
  void Earn(std::size_t bytes) {
    constexpr std::size_t kLeastInMillisecond = 8192;
    fromStart_ += milliseconds(bytes / kLeastInMillisecond);
    fromLastPiece_ = std::max(fromLastPiece_, Clock::now() + kOwnerPatience / 2);
  }

 private:
  Clock::time_point fromStart_ = Clock::now() + kOwnerPatience;
  Clock::time_point fromLastPiece_ = fromStart_;
};

/// How an asking ends that does not end well.
struct Broken {
  OwnerAnswer answer;
};

/// Asks over a connection of its own, for a window of its own that nobody sees.
class Conversation {
 public:
  Conversation(xcb_connection_t* x, xcb_atom_t selection)
      : x_(x),
        selection_(selection),
        property_(AtomOf(x, "TESSEL_TEXT")),
        inPieces_(AtomOf(x, "INCR")),
        window_(xcb_generate_id(x)) {
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(x_)).data;
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(x_, 0, window_, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  }

  /// What the owner gives in that format; nothing where it refuses. Throws Broken.
  std::optional<QByteArray> Ask(xcb_atom_t format) {
    xcb_convert_selection(x_, window_, selection_, format, property_, XCB_CURRENT_TIME);
    xcb_flush(x_);
    if (!AwaitAnswer()) return std::nullopt;
    QByteArray bytes;
    if (TakePiece(bytes) != inPieces_) return bytes;
    bytes.clear();
    for (qsizetype before = -1; before != bytes.size();) {
      AwaitPiece();
      before = bytes.size();
      TakePiece(bytes);
    }
    return bytes;
  }

 private:
  using XEvent = XReply<xcb_generic_event_t>;

  static int TypeOf(const xcb_generic_event_t& event) {
    constexpr int kSentByOthers = 0x80;
    return event.response_type & ~kSentByOthers;
  }

  XEvent NextEvent() {
    for (;;) {
      if (XEvent event{xcb_poll_for_event(x_)}) return event;
      const auto left = std::chrono::ceil<milliseconds>(patience_.End() - Clock::now());
      if (left.count() <= 0 || xcb_connection_has_error(x_) != 0) throw Broken{OwnerAnswer::kNone};
      pollfd waiting = {xcb_get_file_descriptor(x_), POLLIN, 0};
      ::poll(&waiting, 1, static_cast<int>(left.count()));
    }
  }
  /// False where the owner refuses.
  bool AwaitAnswer() {
    for (;;) {
      const XEvent event = NextEvent();
      if (TypeOf(*event) != XCB_SELECTION_NOTIFY) continue;
      return reinterpret_cast<const xcb_selection_notify_event_t&>(*event).property != XCB_NONE;
    }
  }
  void AwaitPiece() {
    for (;;) {
      const XEvent event = NextEvent();
      if (TypeOf(*event) != XCB_PROPERTY_NOTIFY) continue;
      const auto& changed = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
      if (changed.atom == property_ && changed.state == XCB_PROPERTY_NEW_VALUE) return;
    }
  }
  /// Appends the piece that is there and asks for the next one by taking it away; returns its type.
  xcb_atom_t TakePiece(QByteArray& bytes) {
    constexpr std::uint32_t kAll = 0x1FFFFFFF;
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        x_, xcb_get_property(x_, 1, window_, property_, XCB_ATOM_ANY, 0, kAll), nullptr));
    if (!reply) throw Broken{OwnerAnswer::kNone};
    const int count = xcb_get_property_value_length(reply.get());
    if (static_cast<std::size_t>(bytes.size() + count) > kMostFromOwner) {
      throw Broken{OwnerAnswer::kTooLarge};
    }
    bytes.append(static_cast<const char*>(xcb_get_property_value(reply.get())), count);
    patience_.Earn(static_cast<std::size_t>(count));
    return reply->type;
  }

  xcb_connection_t* x_;
  xcb_atom_t selection_;
  xcb_atom_t property_;
  xcb_atom_t inPieces_;
  xcb_window_t window_;
  Patience patience_;
};

std::vector<xcb_atom_t> AtomsIn(const QByteArray& bytes) {
  std::vector<xcb_atom_t> atoms(static_cast<std::size_t>(bytes.size()) / sizeof(xcb_atom_t));
  std::ranges::copy(bytes.first(static_cast<qsizetype>(atoms.size() * sizeof(xcb_atom_t))),
                    reinterpret_cast<char*>(atoms.data()));
  return atoms;
}

/// Some owners end a text with a NUL, as a string in C.
QByteArray InUnicode(QByteArray text, const TextFormat& format) {
  if (format.target == kBytesFormat) return text;
  if (text.endsWith('\0')) text.chop(1);
  return format.isLatin1 ? QString::fromLatin1(text).toUtf8() : text;
}

std::unique_ptr<QMimeData> ReadText(xcb_connection_t* x, xcb_atom_t selection) {
  auto data = std::make_unique<QMimeData>();
  Conversation owner(x, selection);
  const auto formats = AtomsIn(owner.Ask(AtomOf(x, "TARGETS")).value_or(QByteArray()));
  for (const TextFormat& format : kTextFormats) {
    const xcb_atom_t atom = AtomOf(x, format.target);
    if (std::ranges::find(formats, atom) == formats.end()) continue;
    if (auto text = owner.Ask(atom)) {
      data->setData(format.mime, InUnicode(*std::move(text), format));
      return data;
    }
  }
  const auto isContent = [x](xcb_atom_t format) { return IsContent(x, format); };
  if (std::ranges::any_of(formats, isContent)) data->setData(kSomethingElse, {});
  return data;
}

bool IsOurs(QClipboard::Mode mode) {
  const QClipboard* clipboard = QGuiApplication::clipboard();
  return mode == QClipboard::Selection ? clipboard->ownsSelection() : clipboard->ownsClipboard();
}

}  // namespace

OwnersData ReadFromOwner(QClipboard::Mode mode) try {
  if (QGuiApplication::platformName() != QLatin1String("xcb") || IsOurs(mode)) return {};
  const XConnection x(xcb_connect(nullptr, nullptr));
  if (xcb_connection_has_error(x.get()) != 0) return {};
  const xcb_atom_t selection =
      mode == QClipboard::Selection ? xcb_atom_t{XCB_ATOM_PRIMARY} : AtomOf(x.get(), "CLIPBOARD");
  if (!HasOwner(x.get(), selection)) return {};
  return {OwnerAnswer::kGiven, ReadText(x.get(), selection)};
} catch (const Broken& broken) {
  return {broken.answer, nullptr};
}

}  // namespace tessel
