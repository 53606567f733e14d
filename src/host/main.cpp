// Zanth Manager: a window around the control.
#include <malloc.h>

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <cstdlib>
#include <memory>
#include <optional>

#include "automation/BusAddress.h"
#include "base/RuntimeError.h"
#include "host/HostAutomation.h"
#include "host/MainWindow.h"
#include "host/Options.h"
#include "host/language/Translations.h"
#include "host/process/AbruptEnd.h"
#include "host/process/MemoryEnd.h"
#include "host/process/Picture.h"
#include "host/process/StandardError.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/Signals.h"
#include "qt/base/QtText.h"
#include "qt/looks/Theme.h"
#include "qt/services/QtDesktop.h"
#include "qt/services/QtMessageBox.h"
#include "safekeeping/BackupStore.h"
#include "safekeeping/DiskState.h"
#include "safekeeping/KeepingLog.h"
#include "words/StarterWords.h"

namespace tessel {
namespace {

constexpr QSize kDefaultSize(1000, 760);

/// For a picture nobody is there to answer: the sentence goes to standard error, and every question
/// is cancelled.
class WrittenMessages : public MessageBox {
 public:
  MessageAnswer Show(const std::string& text, MessageIcon, const std::string&,
                     MessageButtons buttons) override {
    TellOnStandardError(text);
    ++written_;
    return buttons == MessageButtons::kOk ? MessageAnswer::kOk : MessageAnswer::kCancel;
  }
  bool Any() const { return written_ > 0; }

 private:
  int written_ = 0;
};

/// Leaves a picture of the window and says whether that worked.
bool TakePicture(MainWindow& window, const std::string& file) try {
  QApplication::processEvents();
  WritePicture(window.grab().toImage(), file);
  return true;
} catch (const RuntimeError& problem) {
  TellOnStandardError("cannot write the picture " + file + ": " + problem.what());
  return false;
}

/// The log that $ZANTHMAN_LOG names, or null.
std::unique_ptr<KeepingLog> WantedLog() try {
  const char* path = std::getenv("ZANTHMAN_LOG");
  if (path == nullptr || *path == '\0') return nullptr;
  return std::make_unique<KeepingLog>(path);
} catch (const posix::FileProblem& problem) {
  TellOnStandardError(std::string("cannot write the log: ") + problem.what());
  return nullptr;
}

/// The option's, or what the user wishes.
ColourScheme SchemeOf(const Options& options, const Preferences& wishes) {
  return options.scheme != ColourScheme::kDesktop ? options.scheme : WishedScheme(wishes);
}

int Run(const Options& options) {
  const bool picture = !options.screenshot.empty();
  FallbackSettingsStore settings(options.store, [picture](const std::string& problem) {
    TellOnStandardError(problem);
    if (!picture) TellWhenIdle(problem);
  });
  QtDesktop desktop;
  WrittenMessages written;
  MessageBox& messages = picture ? static_cast<MessageBox&>(written) : desktop.messages;
  const std::string state = DefaultStateFolder();
  BackupStore backups(DefaultBackupFolder());
  desktop.files.KeepOldBytesBy([&backups](const std::string& path, std::string_view bytes) {
    backups.Keep(PathOfFile(path), bytes);
  });
  BackupFiles keptFiles(desktop.files, backups);
  GuardedFiles files(keptFiles);
  desktop.files.SaveOnlyWhere([&files] { return files.AsItBegan(); });
  const Services services = desktop.With(settings, options.hostDirectory, messages, files);

  const ColourScheme scheme = SchemeOf(options, Preferences(settings));
  ApplyTheme(*qApp, scheme);
  const std::unique_ptr<KeepingLog> log = WantedLog();
  OfferStarterWords(settings, files, options.hostDirectory + "/words.txt");
  MainWindow window(services, desktop.widgets, files);
  window.Colours().StartedWith(scheme);
  if (!picture) window.Colours().FollowDesktop();
  window.resize(options.size.value_or(kDefaultSize));
  if (!picture) window.RestoreLook();
  if (options.size) window.resize(*options.size);
  keptFiles.TellProblems(
      [&window](const std::string& problem) { window.ShowNotice(ShownName(problem)); });
  files.TellLongWork([&window](const std::string& work) { window.ShowNotice(ShownName(work)); });
  window.OfferBackups(backups);
  window.KeepsSettingsIn(QFile::decodeName(options.store.c_str()));
  window.show();
  std::optional<HostAutomation> automation;
  const auto automate = [&](bool wanted) {
    automation.reset();
    if (!wanted) return;
    automation.emplace(window.Control(), [&window](const QString& problem) {
      TellOnStandardError(problem.toStdString());
      window.ShowNotice(problem);
    });
  };
  automate(!picture && options.automation.value_or(window.Wishes().Wants(Wish::kAutomation)));
  QObject::connect(&window, &MainWindow::automationWanted, &window, automate);
  std::optional<AbruptEnd> abruptEnd;
  std::optional<MemoryEnd> memoryEnd;
  if (!picture) {
    window.StartSession();
    window.KeepUnsavedText(state + "/recovery");
    if (log) window.LogTo(*log);
    abruptEnd.emplace([&window] { window.KeepEverything(); });
    memoryEnd.emplace([&window] { return window.KeepTexts(); },
                      [&window] { return window.Control().Tessel().Running(); });
  }
  window.OpenFiles(options.files);
  if (picture) return TakePicture(window, options.screenshot) && !written.Any() ? 0 : 1;
  window.ShowFirstHint();
  return QApplication::exec();
}

// By itself the C library keeps large buffers from the first one on that is given back.
void GiveLargeBuffersBack() { mallopt(M_MMAP_THRESHOLD, 1 << 20); }

}  // namespace
}  // namespace tessel

int main(int argc, char** argv) {
  tessel::posix::TakeSizeLimitsAsErrors();
  tessel::GiveLargeBuffersBack();
  int exitStatus = 0;
  const auto options = tessel::ParseOptions(argc, argv, exitStatus);
  if (!options) return exitStatus;

  tessel::StartNoSessionBus();
  QCoreApplication::setOrganizationName("ZanthMan");
  QCoreApplication::setApplicationName("zanth-manager");
  QCoreApplication::setApplicationVersion(TESSEL_VERSION);
  QGuiApplication::setApplicationDisplayName("Zanth Manager");
  int qtArguments = 1;
  QApplication application(qtArguments, argv);
  QGuiApplication::setDesktopFileName("zanth-manager");
  QGuiApplication::setWindowIcon(QIcon(":/tessel/icons/zanth-manager.svg"));
  const tessel::Translations translations(QLocale::system());
  return tessel::Run(*options);
}
