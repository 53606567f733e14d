// tessel-drive: plays host and user for one control.
#include <iostream>
#include <memory>

#include "drive/HeadlessPlayer.h"
#include "drive/Session.h"
#include "drive/program/Options.h"
#include "posix/FallbackSettingsStore.h"
#include "posix/HostDirectory.h"
#include "posix/PosixFiles.h"
#include "posix/Signals.h"
#include "services/HeadlessServices.h"
#include "services/LinearCongruentialRandom.h"
#include "services/MemorySettingsStore.h"

#ifdef TESSEL_DRIVE_QT
#include "drive/qt/QtProgram.h"
#endif

using namespace tessel;
using namespace tessel::drive;

namespace {

std::unique_ptr<SettingsStore> OpenStore(const std::string& file) {
  if (file.empty()) return std::make_unique<MemorySettingsStore>();
  return std::make_unique<FallbackSettingsStore>(
      file, [](const std::string& text) { std::cerr << text << '\n'; });
}

void Play(World world, Player& player) {
  Session session(std::cin, std::cout, std::cerr);
  Stage stage(std::move(world), player, session);
  session.Run(stage);
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  int status = 0;
  if (!ParseOptions(argc, argv, options, status)) return status;

  posix::TakeSizeLimitsAsErrors();
  std::ios::sync_with_stdio(false);
  const auto store = OpenStore(options.store);
  PosixFiles files;
  MemoryClipboard clipboard;
  IdleMessageLoop loop;
  World world{*store,
              files,
              clipboard,
              loop,
              [] { return std::make_unique<LinearCongruentialRandom>(); },
              options.hostDirectory.empty() ? DefaultHostDirectory() : options.hostDirectory,
              options.width,
              options.height};
#ifdef TESSEL_DRIVE_QT
  if (options.qt) {
    const QtProgram program;
    const auto player = MakeWidgetPlayer(clipboard);
    Play(std::move(world), *player);
    return 0;
  }
#endif
  try {
    HeadlessPlayer player;
    Play(std::move(world), player);
  } catch (const Left& left) {
    return left.status;
  }
  return 0;
}
