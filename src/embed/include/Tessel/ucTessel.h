// The editor control for CON files, as one widget for any Qt program.
#pragma once

#include <Tessel/Export.h>

#include <QSize>
#include <QString>
#include <QWidget>
#include <memory>

namespace tessel {
class EmbeddedControl;
class TesselWidget;
}  // namespace tessel

/// The whole control: toolbar, settings panel, document tabs, editors, popup menu and dialogs. Give
/// it a place in a window; everything else happens inside, and failures are told to the user in
/// message boxes: no call throws.
///
/// Controls in one program know nothing of each other; those with the same settings file share it.
/// All calls belong to the thread of the user interface, after the QApplication was made.
class TESSEL_EXPORT ucTessel : public QWidget {
  Q_OBJECT

 public:
  /// What a host may decide. What is left empty is decided as it says there.
  struct Options {
    /// File of the recent files and script words. Empty: the user's own, which Zanth Manager uses
    /// too ($ZANTHMAN_STORE, else ZanthMan/settings.db in the user's configuration folder).
    QString settingsFile;
    /// True keeps the settings in memory, apart from all others, and forgets them at the end.
    bool forgetSettings = false;
    /// Directory of the six template files. Empty: the one that was installed with this library.
    QString templateDirectory;
    /// True: an in-place save leaves a document its name and file. False: the document takes those
    /// of the file chosen last in an open or save dialog, as the control always has.
    bool dialogHoldsDocument = false;
  };

  explicit ucTessel(QWidget* parent = nullptr);
  explicit ucTessel(const Options& options, QWidget* parent = nullptr);
  ~ucTessel() override;

  // While a command is on its way (Running), the calls that open, load, close or convert do
  // nothing: a timer or a slot may come in between its steps.

  /// Opens a file as the list of recent files does; an empty path shows the open dialog. It is
  /// absolute or relative to the working directory.
  void OpenFile(const QString& path);
  /// Takes the current document's text from its file again: for a host that sees it changed.
  void ReloadDocument();
  /// Asks for every modified document, then closes all. False, with nothing closed, when the user
  /// cancelled one or a command is on its way: a window that is closing stays open then.
  bool CloseAll();

  /// True while a command is on its way: close no window now. (A modal dialog of the control is no
  /// such time for this, but keeps the user from the window.)
  bool Running() const;
  /// Full path of the current document's file; empty when it has none yet.
  QString DocumentPath() const;
  /// What the current document's tab says; empty when nothing is open.
  QString DocumentName() const;
  bool DocumentModified() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 public Q_SLOTS:
  // --- Automation interface
  /// Accepts its arguments and does nothing: the control keeps its own version handling.
  void SetTesselVersion(QString& strVersion, QString& strDefault);
  void SetTesselVersion(QString& strVersion);
  /// Converts the current document, a user file of version 1.3D, to 1.4/1.5.
  void Convert();

 Q_SIGNALS:
  // --- Automation interface
  /// A line for the host's status bar. Only the colouring has any.
  void SettingTextColor(const QString& StatusText);

  // --- For the window around it
  /// A typed or pasted text cannot be held by such a file; the sentence says why.
  void TextRefused(const QString& reason);
  /// The current document, its name or its marker changed.
  void DocumentChanged();
  /// The caret or the selection of the current editor moved.
  void CaretMoved();

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  friend class TesselAutomation;
  TESSEL_NO_EXPORT tessel::TesselWidget& Inside() const;

  std::unique_ptr<tessel::EmbeddedControl> control_;
};
