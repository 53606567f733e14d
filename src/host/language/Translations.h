// The language of the window.
#pragma once

#include <QLocale>
#include <QTranslator>
#include <memory>
#include <vector>

namespace tessel {

/// What the window says in the first language of a locale that there is a translation for, for as
/// long as this lives. Else it is English, which has a file of its own for its plurals. The texts
/// of the control itself stay as they are.
class Translations {
 public:
  /// Needs the application. QLocale::system() knows what $LANGUAGE and the locale say.
  explicit Translations(const QLocale& locale);
  ~Translations();
  Translations(const Translations&) = delete;
  Translations& operator=(const Translations&) = delete;

 private:
  void Add(const QLocale& locale, const QString& file, const QString& folder);

  std::vector<std::unique_ptr<QTranslator>> installed_;
};

}  // namespace tessel
