#include "drive/qt/Comparison.h"

#include <algorithm>

#include "text/SafeText.h"

namespace tessel::drive {
namespace {

constexpr qsizetype kToldBefore = 12;
constexpr qsizetype kToldBehind = 28;

std::string Told(const QRect& place) {
  return QStringLiteral("%1,%2 %3x%4")
      .arg(place.x())
      .arg(place.y())
      .arg(place.width())
      .arg(place.height())
      .toStdString();
}

std::string Told(const QString& text, qsizetype place) {
  const qsizetype from = std::max<qsizetype>(place - kToldBefore, 0);
  return QStringLiteral("\"%1\" (%2 characters, from %3)")
      .arg(text.mid(from, kToldBefore + kToldBehind))
      .arg(text.size())
      .arg(from)
      .toStdString();
}

std::string ToldColour(unsigned colour) {
  return QStringLiteral("0x%1").arg(colour, 6, 16, QLatin1Char('0')).toStdString();
}

const char* Told(bool value) { return value ? "true" : "false"; }

}  // namespace

std::string SentenceOf(const Difference& difference) {
  return ForTerminal(difference.control + ": " + difference.property + " is " + difference.shown +
                     ", expected " + difference.expected);
}

void Comparison::Expect(std::string_view property, bool expected, bool shown) {
  if (shown != expected) Note(property, Told(expected), Told(shown));
}

void Comparison::Expect(std::string_view property, long expected, long shown) {
  if (shown != expected) Note(property, std::to_string(expected), std::to_string(shown));
}

void Comparison::Expect(std::string_view property, const QRect& expected, const QRect& shown) {
  if (shown != expected) Note(property, Told(expected), Told(shown));
}

void Comparison::Expect(std::string_view property, const QString& expected, const QString& shown) {
  if (shown == expected) return;
  const auto differ = std::ranges::mismatch(expected, shown);
  const qsizetype place = differ.in1 - expected.begin();
  Note(property, Told(expected, place), Told(shown, place));
}

void Comparison::ExpectColour(std::string_view property, unsigned expected, unsigned shown) {
  if (shown != expected) Note(property, ToldColour(expected), ToldColour(shown));
}

void Comparison::Note(std::string_view property, std::string expected, std::string shown) {
  found_.push_back({control_, std::string(property), std::move(expected), std::move(shown)});
}

}  // namespace tessel::drive
