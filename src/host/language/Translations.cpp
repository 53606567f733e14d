#include "host/language/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

// The macro wants the global namespace.
static void LoadTranslations() { Q_INIT_RESOURCE(translations); }

namespace tessel {
namespace {

constexpr const char* kOwnFolder = ":/tessel/translations";

/// What the toolkit adds to every window; it has translations of its own only where they are
/// installed.
[[maybe_unused]] constexpr const char* kOfTheToolkit[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),     QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),   QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),  QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),    QT_TRANSLATE_NOOP("QTabBar", "Scroll Left"),
    QT_TRANSLATE_NOOP("QTabBar", "Scroll Right"),  QT_TRANSLATE_NOOP("QDockWidget", "Close"),
    QT_TRANSLATE_NOOP("CloseButton", "Close Tab"),
};

}  // namespace

Translations::Translations(const QLocale& locale) {
  LoadTranslations();
  Add(QLocale(QLocale::English), "zanth-manager", kOwnFolder);
  Add(locale, "qtbase", QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  Add(locale, "zanth-manager", kOwnFolder);
}

// The last one is asked first.
void Translations::Add(const QLocale& locale, const QString& file, const QString& folder) {
  auto translator = std::make_unique<QTranslator>();
  if (!translator->load(locale, file, "_", folder)) return;
  QCoreApplication::installTranslator(translator.get());
  installed_.push_back(std::move(translator));
}

Translations::~Translations() {
  for (const auto& translator : installed_) QCoreApplication::removeTranslator(translator.get());
}

}  // namespace tessel
