// Where a widget is not as its model says.
#pragma once

#include <QRect>
#include <QString>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessel::drive {

/// A property in which a widget differs from its model, both told for a person.
struct Difference {
  std::string control;
  std::string property;
  std::string expected;  ///< by the model
  std::string shown;     ///< by the widget
};

/// One line of UTF-8.
std::string SentenceOf(const Difference& difference);

/// Compares the properties of one control and notes those that differ.
class Comparison {
 public:
  Comparison(std::string control, std::vector<Difference>& found)
      : control_(std::move(control)), found_(found) {}

  void Expect(std::string_view property, bool expected, bool shown);
  void Expect(std::string_view property, long expected, long shown);
  void Expect(std::string_view property, const QRect& expected, const QRect& shown);
  /// Tells the surroundings of the first difference.
  void Expect(std::string_view property, const QString& expected, const QString& shown);
  void ExpectColour(std::string_view property, unsigned expected, unsigned shown);
  /// What cannot be compared at all.
  void Note(std::string_view property, std::string expected, std::string shown);

 private:
  std::string control_;
  std::vector<Difference>& found_;
};

}  // namespace tessel::drive
