// What a desktop program passes to the control.
#pragma once

#include <string>

#include "qt/base/WidgetMap.h"
#include "qt/services/QtClipboard.h"
#include "qt/services/QtFileDialogs.h"
#include "qt/services/QtFiles.h"
#include "qt/services/QtMessageBox.h"
#include "qt/services/QtModalForms.h"
#include "qt/services/QtScreen.h"
#include "services/LinearCongruentialRandom.h"
#include "services/Services.h"

namespace tessel {

/// The services of the desktop, one of each. Make one after the QApplication and keep it for as
/// long as the TesselWidget that is built on it; every widget needs one of its own.
struct QtDesktop {
  QtMessageBox messages;
  QtFileDialogs fileDialogs;
  QtModalForms forms;
  QtClipboard clipboard;
  QtScreenPointer pointer;
  QtFiles files;
  LinearCongruentialRandom random;
  WidgetMap widgets;  ///< for TesselWidget, which enters its widgets, and for the focus
  QtFocus focus{widgets};
  QtMessageLoop loop;

  /// All of them with a settings store, which may be shared by several controls, and the directory
  /// of the templates.
  Services With(SettingsStore& settings, const std::string& hostDirectory) {
    return With(settings, hostDirectory, messages, files);
  }
  /// The same with message boxes and files of the host's own.
  Services With(SettingsStore& settings, const std::string& hostDirectory, MessageBox& hostMessages,
                Files& hostFiles) {
    return {.messages = hostMessages,
            .fileDialogs = fileDialogs,
            .forms = forms,
            .clipboard = clipboard,
            .settings = settings,
            .pointer = pointer,
            .files = hostFiles,
            .random = random,
            .focus = focus,
            .loop = loop,
            .hostDirectory = hostDirectory};
  }
};

}  // namespace tessel
