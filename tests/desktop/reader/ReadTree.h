// What a screen reader is told of the programs on the bus.
#pragma once

#include <QDBusConnection>
#include <QPoint>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace tessel::test {

/// A thing on the accessibility bus.
struct Accessible {
  QString service;
  QString path;
};

/// The numbers of org.a11y.atspi's states that the tests ask for.
enum class AtState {
  kChecked = 4,
  kEnabled = 8,
  kExpandable = 9,
  kExpanded = 10,
  kFocusable = 11,
  kFocused = 12,
  kSelected = 23,
  kShowing = 25,
  kVisible = 30,
  kCheckable = 41,
  kHasPopup = 42,
};

/// Asks one program on one bus.
class Reader {
 public:
  /// Waits until the program has told the registry that it is there; without one the reader finds
  /// nothing.
  explicit Reader(const QString& program);

  bool FindsProgram() const { return program_.has_value(); }
  const Accessible& Program() const { return *program_; }

  QString Name(const Accessible& at) const { return Property(at, kPlain, "Name").toString(); }
  QString Description(const Accessible& at) const {
    return Property(at, kPlain, "Description").toString();
  }
  QString Role(const Accessible& at) const;
  bool Is(const Accessible& at, AtState state) const;
  std::vector<Accessible> Children(const Accessible& at) const;
  Accessible Parent(const Accessible& at) const;
  /// What has a label that names it.
  bool HasLabel(const Accessible& at) const;
  QStringList Actions(const Accessible& at) const;
  /// Does not wait for what the action does.
  void Do(const Accessible& at, const QString& action) const;

  void Focus(const Accessible& at) const;

  QString Text(const Accessible& at) const;
  int Caret(const Accessible& at) const;

  /// Everything below that is in sight, itself included.
  std::vector<Accessible> InSight(const Accessible& at) const;
  /// The first thing in sight for which that holds, once there is one; at most 20 seconds.
  std::optional<Accessible> Await(const std::function<bool(const Accessible&)>& holds) const;
  std::optional<Accessible> Await(const QString& role, const QString& name) const;

  /// False when it is still in sight after 20 seconds.
  bool AwaitGone(const QString& role, const QString& name) const;

  /// "role 'name'", and those of its parents.
  QString Place(const Accessible& at) const;

 private:
  static constexpr const char* kPlain = "org.a11y.atspi.Accessible";

  QVariant Property(const Accessible& at, const char* interface, const char* name) const;
  QDBusMessage Call(const Accessible& at, const char* interface, const char* method,
                    const QVariantList& arguments = {}) const;
  void AddInSight(const Accessible& at, std::vector<Accessible>& found) const;

  QDBusConnection bus_;
  std::optional<Accessible> program_;
};

}  // namespace tessel::test
