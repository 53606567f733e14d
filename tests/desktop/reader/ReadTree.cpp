#include "ReadTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QElapsedTimer>
#include <QThread>
#include <algorithm>

namespace tessel::test {
namespace {

constexpr int kPatience = 20'000;
constexpr int kPause = 100;
constexpr const char* kText = "org.a11y.atspi.Text";
constexpr const char* kComponent = "org.a11y.atspi.Component";
constexpr const char* kAction = "org.a11y.atspi.Action";
constexpr unsigned kLabelledBy = 2;

QDBusConnection BusOfReaders() {
  const QDBusMessage answer = QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
      "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress"));
  return QDBusConnection::connectToBus(answer.arguments().value(0).toString(), "readers");
}

Accessible TakeReference(const QDBusArgument& from) {
  Accessible at;
  from.beginStructure();
  QDBusObjectPath path;
  from >> at.service >> path;
  from.endStructure();
  at.path = path.path();
  return at;
}

std::vector<Accessible> TakeReferences(const QDBusArgument& from) {
  std::vector<Accessible> all;
  from.beginArray();
  while (!from.atEnd()) all.push_back(TakeReference(from));
  from.endArray();
  return all;
}

}  // namespace

Reader::Reader(const QString& program) : bus_(BusOfReaders()) {
  const Accessible desktop{"org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root"};
  QElapsedTimer waited;
  for (waited.start(); waited.elapsed() < kPatience; QThread::msleep(kPause)) {
    for (const Accessible& at : Children(desktop)) {
      if (Name(at) == program) {
        program_ = at;
        return;
      }
    }
  }
}

QDBusMessage Reader::Call(const Accessible& at, const char* interface, const char* method,
                          const QVariantList& arguments) const {
  QDBusMessage call = QDBusMessage::createMethodCall(at.service, at.path, interface, method);
  call.setArguments(arguments);
  return bus_.call(call);
}

QVariant Reader::Property(const Accessible& at, const char* interface, const char* name) const {
  const QDBusMessage answer = Call(at, "org.freedesktop.DBus.Properties", "Get", {interface, name});
  return answer.arguments().value(0).value<QDBusVariant>().variant();
}

QString Reader::Role(const Accessible& at) const {
  return Call(at, kPlain, "GetRoleName").arguments().value(0).toString();
}

bool Reader::Is(const Accessible& at, AtState state) const {
  const QDBusMessage answer = Call(at, kPlain, "GetState");
  if (answer.arguments().isEmpty()) return false;
  QList<unsigned> words;
  answer.arguments().first().value<QDBusArgument>() >> words;
  const auto bit = static_cast<unsigned>(state);
  return words.size() > bit / 32 && ((words[bit / 32] >> (bit % 32)) & 1) != 0;
}

std::vector<Accessible> Reader::Children(const Accessible& at) const {
  const QDBusMessage answer = Call(at, kPlain, "GetChildren");
  if (answer.arguments().isEmpty()) return {};
  return TakeReferences(answer.arguments().first().value<QDBusArgument>());
}

Accessible Reader::Parent(const Accessible& at) const {
  return TakeReference(Property(at, kPlain, "Parent").value<QDBusArgument>());
}

bool Reader::HasLabel(const Accessible& at) const {
  const QDBusMessage answer = Call(at, kPlain, "GetRelationSet");
  if (answer.arguments().isEmpty()) return false;
  const auto from = answer.arguments().first().value<QDBusArgument>();
  bool labelled = false;
  from.beginArray();
  while (!from.atEnd()) {
    unsigned relation = 0;
    from.beginStructure();
    from >> relation;
    labelled = (!TakeReferences(from).empty() && relation == kLabelledBy) || labelled;
    from.endStructure();
  }
  from.endArray();
  return labelled;
}

QStringList Reader::Actions(const Accessible& at) const {
  const QDBusMessage answer = Call(at, kAction, "GetActions");
  QStringList names;
  if (answer.arguments().isEmpty()) return names;
  const auto from = answer.arguments().first().value<QDBusArgument>();
  from.beginArray();
  while (!from.atEnd()) {
    QString name;
    QString description;
    QString keys;
    from.beginStructure();
    from >> name >> description >> keys;
    from.endStructure();
    names += name;
  }
  from.endArray();
  return names;
}

void Reader::Do(const Accessible& at, const QString& action) const {
  QDBusMessage call = QDBusMessage::createMethodCall(at.service, at.path, kAction, "DoAction");
  call.setArguments({static_cast<int>(Actions(at).indexOf(action))});
  bus_.send(call);
}

void Reader::Focus(const Accessible& at) const { Call(at, kComponent, "GrabFocus"); }

QString Reader::Text(const Accessible& at) const {
  return Call(at, kText, "GetText", {0, -1}).arguments().value(0).toString();
}

int Reader::Caret(const Accessible& at) const { return Property(at, kText, "CaretOffset").toInt(); }

std::vector<Accessible> Reader::InSight(const Accessible& at) const {
  std::vector<Accessible> found;
  AddInSight(at, found);
  return found;
}

void Reader::AddInSight(const Accessible& at, std::vector<Accessible>& found) const {
  if (at.path != program_->path && !Is(at, AtState::kShowing)) return;
  found.push_back(at);
  for (const Accessible& child : Children(at)) AddInSight(child, found);
}

std::optional<Accessible> Reader::Await(const std::function<bool(const Accessible&)>& holds) const {
  QElapsedTimer waited;
  for (waited.start(); waited.elapsed() < kPatience; QThread::msleep(kPause)) {
    for (const Accessible& at : InSight(*program_)) {
      if (holds(at)) return at;
    }
  }
  return std::nullopt;
}

std::optional<Accessible> Reader::Await(const QString& role, const QString& name) const {
  return Await([&](const Accessible& at) { return Role(at) == role && Name(at) == name; });
}

bool Reader::AwaitGone(const QString& role, const QString& name) const {
  QElapsedTimer waited;
  for (waited.start(); waited.elapsed() < kPatience; QThread::msleep(kPause)) {
    const auto shown = InSight(*program_);
    const bool there = std::ranges::any_of(
        shown, [&](const Accessible& at) { return Role(at) == role && Name(at) == name; });
    if (!there) return true;
  }
  return false;
}

QString Reader::Place(const Accessible& at) const {
  const QString here = Role(at) + " '" + Name(at) + "'";
  const bool top = at.path == program_->path || at.path.endsWith("/null") || at.path.isEmpty();
  return top ? here : Place(Parent(at)) + " > " + here;
}

}  // namespace tessel::test
