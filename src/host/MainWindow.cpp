#include "host/MainWindow.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "base/RuntimeError.h"
#include "host/BackupComparison.h"
#include "host/BackupsDialog.h"
#include "host/ChangeNotice.h"
#include "host/ConversionNotice.h"
#include "host/FirstStartHint.h"
#include "host/HostAutomation.h"
#include "host/ReadingNotice.h"
#include "host/RecoveryKeeper.h"
#include "host/RecoveryOffer.h"
#include "host/RestoredText.h"
#include "host/Session.h"
#include "host/changes/ChangeReports.h"
#include "host/help/AboutDialog.h"
#include "host/help/HelpWindows.h"
#include "host/menu/DocumentMenus.h"
#include "host/menu/FreeLetters.h"
#include "host/menu/TabMenu.h"
#include "host/menu/WindowKeys.h"
#include "host/panel/ReplacementOutline.h"
#include "host/preferences/PreferencesDialog.h"
#include "host/problems/Problems.h"
#include "host/script/ScriptTools.h"
#include "host/second/SecondView.h"
#include "host/status/DocumentStatus.h"
#include "host/view/EditorLooks.h"
#include "host/view/LiveColouring.h"
#include "host/view/ScrollMarks.h"
#include "posix/PosixFiles.h"
#include "qt/base/QtText.h"
#include "qt/editor/ScintillaView.h"
#include "qt/views/BoxPaste.h"
#include "qt/views/ComboBoxView.h"
#include "qt/views/ToolbarView.h"
#include "services/Paths.h"

namespace tessel {
namespace {

constexpr int kNoticeMilliseconds = 8000;
constexpr int kSessionMilliseconds = 1000;
constexpr const char* kToggles[] = {"Colorize", "ShowTabs"};

struct WishItem {
  WindowCommand command;
  Wish wish;
};

constexpr WishItem kWishItems[] = {
    {WindowCommand::kReopen, Wish::kReopen},
    {WindowCommand::kAutomation, Wish::kAutomation},
    {WindowCommand::kButtonWords, Wish::kButtonWords},
};

/// The local files of a drag, or nothing when it holds anything else.
std::vector<std::string> FilesOf(const QMimeData* data) {
  std::vector<std::string> files;
  if (data == nullptr || !data->hasUrls()) return files;
  for (const QUrl& url : data->urls()) {
    if (!url.isLocalFile()) return {};
    files.push_back(QFile::encodeName(url.toLocalFile()).toStdString());
  }
  return files;
}

/// The path by which a file is open, when it is; else its own.
std::string OpenedPathOf(TesselWidget& control, const std::string& file) {
  for (const std::string& path : OpenDocumentsOf(control.Tessel().OpenDocuments()).paths) {
    if (PathOfFile(path) == file) return path;
  }
  return file;
}

Menu MenuOfScriptCommand(const QString& name) {
  if (name.startsWith("Go")) return Menu::kSearch;
  const bool shows = name.endsWith("Outline") || name.contains("fold", Qt::CaseInsensitive);
  return shows ? Menu::kView : Menu::kEdit;
}

Services With(const Services& s, FileDialogs& dialogs) {
  return {.messages = s.messages,
          .fileDialogs = dialogs,
          .forms = s.forms,
          .clipboard = s.clipboard,
          .settings = s.settings,
          .pointer = s.pointer,
          .files = s.files,
          .random = s.random,
          .focus = s.focus,
          .loop = s.loop,
          .hostDirectory = s.hostDirectory};
}

}  // namespace

MainWindow::MainWindow(const Services& services, WidgetMap& widgets, GuardedFiles& files)
    : preferences_(services.settings),
      dialogs_(services.fileDialogs),
      guard_(files, services.messages, services.settings),
      panel_(services.messages),
      control_(new TesselWidget(With(services, dialogs_), widgets, this, ControlOptions())),
      files_(files),
      messages_(services.messages),
      settings_(services.settings) {
  dialogs_.StartAt([this] { return control_->Tessel().OpenDocuments().Current().Path(); });
  guard_.Watch(control_->Tessel().OpenDocuments());
  panel_.Watch(control_->Tessel(),
               [this](Slot slot) -> const language::Script& { return script_->ScriptOf(slot); });
  auto* centre = new QWidget(this);
  auto* column = new QVBoxLayout(centre);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  const auto keepText = [this](const std::string& path, std::string_view text) {
    return KeepAsBackup(path, text);
  };
  letters_ = new FreeLetters(*control_);
  AddNotice(*new ConversionNotice(control_->Tessel(), control_));
  AddNotice(*new ReadingNotice(*control_, control_));
  changeNotice_ = new ChangeNotice(*control_, guard_, messages_, keepText, control_);
  AddNotice(*changeNotice_);
  splitter_ = new QSplitter(Qt::Horizontal, centre);
  splitter_->addWidget(control_);
  column->addWidget(splitter_, 1);
  find_ = new FindBar(*control_, centre);
  column->addWidget(find_);
  letters_->AddBar(*find_);
  setCentralWidget(centre);
  setAcceptDrops(true);
  qApp->installEventFilter(this);
  qApp->installEventFilter(new BoxPaste(this));
  BuildMenu();
  BuildStatusBar();
  ReportChanges();
  OfferProblems(services.hostDirectory);
  OutlineReplacements();
  connect(control_, &TesselWidget::statusText, this, &MainWindow::ShowNotice);
  connect(control_, &TesselWidget::textRefused, this, &MainWindow::ShowNotice);
  connect(control_, &TesselWidget::documentChanged, this, &MainWindow::ShowDocument);
  ShowDocument();
}

// The focus leaves the parts as they go, when what listens to it is gone already.
MainWindow::~MainWindow() { disconnect(qApp, nullptr, this, nullptr); }

ucTessel::Options MainWindow::ControlOptions() {
  return {.dialogHoldsDocument = true,
          .host = &guard_,
          .mayPanelWrite = [this](PanelWrite write, std::string_view text) {
            if (write != PanelWrite::kWord) histories_.PanelWrites();
            return panel_.MayWrite(write, text);
          }};
}

void MainWindow::OutlineReplacements() {
  auto* outline = new ReplacementOutline(*control_);
  asking_ = panel_.Asking.Connect([outline](bool asking) { outline->SetAsking(asking); });
}

void MainWindow::BuildMenu() {
  menu_ = new MainMenu(*this, control_->Tessel());
  const QWidget* toolbar = control_->WidgetFor(control_->Tessel().Controls().tbToolBar);
  auto* documents =
      new DocumentMenus(*menu_, control_->Tessel(), *toolbar->findChild<QWidget*>("FileNew"));
  auto* tabs = new TabMenu(*control_, this);
  connect(tabs, &TabMenu::closeOthersWanted, documents, &DocumentMenus::CloseOthers);
  new EditorLooks(*control_, *menu_, preferences_);
  new LiveColouring(*control_, *menu_, preferences_);
  new ScrollMarks(*control_, *menu_, preferences_, *find_);
  auto* second = new SecondView(*control_, *splitter_, *menu_, preferences_);
  connect(second, &SecondView::said, this, &MainWindow::ShowNotice);
  new WindowKeys(*this);
  OfferFileCommands();
  OfferTextCommands();
  OfferPreferences();
  OfferHelp();
}

void MainWindow::OfferFileCommands() {
  using enum WindowCommand;
  menu_->On(kOpen, [this] { control_->Tessel().OpenFile({}); });
  menu_->On(kQuit, [this] { close(); });
}

void MainWindow::OfferTextCommands() {
  using enum WindowCommand;
  menu_->On(kUndo, [this] { histories_.Undo(); });
  menu_->On(kRedo, [this] { histories_.Redo(); });
  menu_->On(kToggleComment, [this] {
    if (ToggleCommentLines(*control_)) changes_->LinesChanged();
  });
  menu_->On(kFindBar, [this] { find_->Find(); });
  menu_->On(kReplace, [this] { find_->Replace(); });
  menu_->On(kNextMatch, [this] { find_->FindNext(); });
  menu_->On(kPreviousMatch, [this] { find_->FindPrevious(); });
  connect(find_, &FindBar::told, this, &MainWindow::ShowNotice);
  menu_->On(kGoToLine, [this] { AskForLine(*control_); });
  script_ = new ScriptTools(*this, *control_, preferences_, settings_);
  connect(script_, &ScriptTools::said, this, &MainWindow::ShowNotice);
  for (QAction* action : script_->findChildren<QAction*>()) {
    menu_->Of(MenuOfScriptCommand(action->objectName())).addAction(action);
  }
  ShowTitlesOfLevels();
  connect(qApp, &QApplication::focusChanged, this, [this] { histories_.EndValue(); });
}

void MainWindow::ShowTitlesOfLevels() {
  auto* levels =
      qobject_cast<ComboBoxView*>(control_->WidgetFor(control_->Tessel().Controls().cboEpisode));
  levels->ShowNotes([this] { return script_->TitlesOfListedLevels(); });
}

void MainWindow::OfferProblems(const std::string& hostDirectory) {
  problems_ = new Problems(*this, {.control = *control_,
                                   .script = *script_,
                                   .menu = *menu_,
                                   .preferences = preferences_,
                                   .settings = settings_,
                                   .hostDirectory = hostDirectory});
  connect(problems_, &Problems::said, this, &MainWindow::ShowNotice);
  for (QWidget* bar : problems_->Bars()) letters_->AddBar(*bar);
}

void MainWindow::OfferPreferences() {
  menu_->On(WindowCommand::kPreferences,
            [this] { (new PreferencesDialog(preferences_, this))->open(); });
  auto* toolbar =
      qobject_cast<ToolbarView*>(control_->WidgetFor(control_->Tessel().Controls().tbToolBar));
  const auto apply = [this, toolbar](Wish wish) {
    const bool wanted = preferences_.Wants(wish);
    if (wish == Wish::kReopen) RememberSession();
    if (wish == Wish::kBackups) LimitBackups();
    if (wish == Wish::kAutomation) emit automationWanted(wanted);
    if (wish == Wish::kButtonWords) toolbar->ShowWords(wanted);
    for (const auto& [command, shown] : kWishItems) {
      if (shown == wish) menu_->Action(command).setChecked(wanted);
    }
  };
  for (const auto& [command, wish] : kWishItems) {
    menu_->OnToggle(command, preferences_.Wants(wish),
                    [this, set = wish](bool wanted) { preferences_.Set(set, wanted ? 1 : 0); });
  }
  if (preferences_.Wants(Wish::kButtonWords)) toolbar->ShowWords(true);
  wishes_ = preferences_.Changed.Connect(apply);
}

void MainWindow::OfferHelp() {
  using enum WindowCommand;
  menu_->On(kManual, [this] { ShowManual(*this); });
  menu_->On(kShortcuts, [this] { ShowShortcuts(*this, *menu_); });
  menu_->On(kAbout, [this] { (new AboutDialog(settingsFile_, this))->open(); });
}

void MainWindow::RememberSession() {
  if (!preferences_.Wants(Wish::kReopen)) return ForgetDocuments();
  RememberDocuments(OpenDocumentsOf(control_->Tessel().OpenDocuments()));
}

void MainWindow::BuildStatusBar() {
  statusBar()->setSizeGripEnabled(true);
  new DocumentStatus(*statusBar(), *control_, [this](Slot slot) -> const language::Script& {
    return script_->ScriptOf(slot);
  });
  connect(statusBar(), &QStatusBar::messageChanged, this, [this](const QString& message) {
    statusBar()->setAccessibleName(message);
    QAccessibleEvent said(statusBar(), QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
  });
}

void MainWindow::ReportChanges() {
  changes_ = new ChangeReports(*statusBar(), *control_, histories_);
  walked_ = randomizeEnd_.Walked.Connect([this] { changes_->Randomizing(); });
  connect(find_, &FindBar::replaced, changes_, &ChangeReports::Replaced);
  connect(changeNotice_, &ChangeNotice::reloaded, changes_, &ChangeReports::Reloaded);
  menu_->On(WindowCommand::kShowChanges, [this] { changes_->ShowChanges(); });
  QAction& show = menu_->Action(WindowCommand::kShowChanges);
  show.setEnabled(false);
  connect(changes_, &ChangeReports::offered, &show, &QAction::setEnabled);
}

void MainWindow::OpenFiles(const std::vector<std::string>& paths) {
  for (const std::string& path : paths) control_->Tessel().OpenFile(path);
}

void MainWindow::ShowNotice(const QString& text) {
  statusBar()->showMessage(text, kNoticeMilliseconds);
  // A command on its way lets nothing else paint.
  if (control_->Tessel().Running()) statusBar()->repaint();
}

void MainWindow::ShowDocument() {
  const Document document = control_->Tessel().OpenDocuments().Current();
  const bool modified = document.Modified();
  QString name = ShownName(document.Name());
  name.replace("[*]", "[*][*]");  // one is the mark of a modified document
  setWindowTitle(name.isEmpty() ? tr("Zanth Manager[*]") : name + tr("[*] \u2014 Zanth Manager"));
  setWindowModified(modified);
}

// Keys belong to the text from the first one on.
void MainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (QWidget* view = control_->CurrentEditorView()) view->setFocus();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  const OpenDocuments open = OpenDocumentsOf(control_->Tessel().OpenDocuments());
  places_.KeepAll();
  if (!control_->Tessel().CloseAll()) {
    event->ignore();
    return;
  }
  session_.stop();
  preferences_.Wants(Wish::kReopen) ? RememberDocuments(open) : ForgetDocuments();
  if (keeper_ != nullptr) keeper_->Finish();
  SaveLook();
  event->accept();
}

// --- Text that comes back: backups, texts of a run that was killed, documents of the last run

void MainWindow::OfferBackups(BackupStore& backups) {
  backups_ = &backups;
  LimitBackups();
  menu_->On(WindowCommand::kBackups, [this] { ShowBackups(); });
}

void MainWindow::LimitBackups() {
  if (backups_ == nullptr) return;
  const int perFile = std::clamp(preferences_.Number(Wish::kBackups), 1, kMostBackupsOfAFile);
  backups_->Limit({.perFile = static_cast<std::size_t>(perFile)});
}

bool MainWindow::KeepAsBackup(const std::string& path, std::string_view text) {
  try {
    if (backups_ == nullptr) throw posix::FileProblem("there is no folder for backups");
    backups_->Keep(PathOfFile(path), text);
    return true;
  } catch (const posix::FileProblem& problem) {
    const QString sentence = tr("Your text cannot be kept: %1. The file is not reloaded.");
    messages_.Show(sentence.arg(ShownName(problem.what())).toStdString(), MessageIcon::kExclamation,
                   kProgramTitle, MessageButtons::kOk);
    return false;
  }
}

void MainWindow::ShowBackups() {
  if (control_->Tessel().Running()) return;
  try {
    const std::string path = OpenDocumentsOf(control_->Tessel().OpenDocuments()).current;
    auto* dialog =
        new BackupsDialog(backups_->List(), path.empty() ? path : PathOfFile(path), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &BackupsDialog::chosen, this, &MainWindow::RestoreBackup);
    connect(dialog, &BackupsDialog::comparisonWanted, this,
            [this, dialog](const Backup& backup) { ShowChangesSince(backup, *dialog); });
    dialog->open();
  } catch (const posix::FileProblem& problem) {
    ShowNotice(tr("The backups cannot be read: %1.").arg(ShownName(problem.what())));
  }
}

void MainWindow::RestoreBackup(const Backup& backup) {
  try {
    const KeptBytes kept = backups_->Read(backup);
    const std::string path = kept.damaged ? std::string() : OpenedPathOf(*control_, backup.path);
    if (ShowRestoredText(control_->Tessel(), files_, path, kept.bytes)) changes_->BackupShown();
    if (kept.damaged) ShowNotice(tr("The backup is damaged. This is what is left of it."));
  } catch (const posix::FileProblem& problem) {
    ShowNotice(tr("The backup cannot be read: %1.").arg(ShownName(problem.what())));
  }
}

void MainWindow::ShowChangesSince(const Backup& backup, BackupsDialog& dialog) {
  try {
    const std::string path = OpenedPathOf(*control_, backup.path);
    ShowDifferences(dialog, control_->CurrentEditorView(),
                    {CompareBackup(backup, backups_->Read(backup).bytes, path,
                                   control_->Tessel().OpenDocuments())});
  } catch (const std::runtime_error& problem) {
    ShowNotice(tr("The backup cannot be compared: %1.").arg(ShownName(problem.what())));
  }
}

void MainWindow::KeepUnsavedText(const std::string& folder) {
  // Not through the guarded files: this is no look that the user has taken.
  const auto onDisk = [](const std::string& path) -> std::optional<std::string> {
    try {
      return PosixFiles().Read(path);
    } catch (const RuntimeError&) {
      return std::nullopt;
    }
  };
  auto texts = std::make_unique<AbandonedTexts>(folder, onDisk);
  keeper_ = new RecoveryKeeper(control_->Tessel(), guard_, folder, this);
  connect(keeper_, &RecoveryKeeper::failed, this, &MainWindow::ShowNotice);
  if (texts->Problem()) {
    ShowNotice(tr("Text that an earlier run kept in %1 cannot be read: %2.")
                   .arg(ShownName(folder), ShownName(*texts->Problem())));
  }
  if (texts->Texts().empty()) return;
  auto* offer = new RecoveryOffer(
      control_->Tessel(), files_, messages_, std::move(texts),
      [this] { return keeper_->KeepNow(); }, control_);
  AddNotice(*offer);
}

void MainWindow::AddNotice(QWidget& notice) {
  control_->ShowAboveText(notice);
  letters_->AddBar(notice);
}

void MainWindow::LogTo(KeepingLog& log) {
  log_ = &log;
  if (keeper_ != nullptr) keeper_->LogTo(&log);
}

bool MainWindow::KeepTexts() { return keeper_ == nullptr || keeper_->KeepNow(); }

void MainWindow::KeepEverything() {
  KeepTexts();
  RememberSession();
  places_.KeepAll();
}

void MainWindow::StartSession() {
  if (preferences_.Wants(Wish::kReopen)) {
    QStringList missing;
    for (const std::string& path :
         ReopenDocuments(control_->Tessel(), files_, RememberedDocuments())) {
      missing += ShownName(NameOfPath(path, files_.Separator()));
    }
    if (!missing.isEmpty()) {
      ShowNotice(tr("Not there any more and not opened again: %1").arg(missing.join(", ")));
    }
  }
  // Remembered while the program runs, too: it may be killed.
  session_.setSingleShot(true);
  session_.setInterval(kSessionMilliseconds);
  connect(&session_, &QTimer::timeout, this, &MainWindow::RememberSession);
  connect(control_, &TesselWidget::documentChanged, &session_, qOverload<>(&QTimer::start));
}

void MainWindow::ShowFirstHint() {
  if (!preferences_.Wants(Wish::kHint)) return;
  preferences_.Set(Wish::kHint, 0);
  if (!control_->Tessel().OpenDocuments().Current().IsFree()) return;
  auto* hint = new FirstStartHint(*control_, control_);
  connect(hint, &FirstStartHint::manualWanted, this, [this] { ShowManual(*this); });
  AddNotice(*hint);
}

// --- Files dropped anywhere in the window are opened, on the editor too

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  const bool key = event->type() == QEvent::KeyPress && watched == QApplication::focusWidget();
  if (key && log_ != nullptr) log_->Key();
  const bool drag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove ||
                    event->type() == QEvent::Drop;
  if (!drag || !watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  auto* drop = static_cast<QDropEvent*>(event);
  if (widget == this || !isAncestorOf(widget) || FilesOf(drop->mimeData()).empty()) return false;
  drop->acceptProposedAction();
  if (event->type() == QEvent::Drop) dropEvent(drop);
  return true;
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!FilesOf(event->mimeData()).empty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const std::vector<std::string> files = FilesOf(event->mimeData());
  event->acceptProposedAction();
  // The program the files come from waits for the drop to end: what opening asks comes later.
  QMetaObject::invokeMethod(
      this, [this, files] { OpenFiles(files); }, Qt::QueuedConnection);
}

// --- What is remembered between runs

void MainWindow::SaveLook() {
  QSettings settings;
  settings.setValue("window/geometry", saveGeometry());
  for (const char* key : kToggles) {
    settings.setValue(QString("toolbar/") + key,
                      control_->Tessel().Controls().tbToolBar.Pressed(key));
  }
}

void MainWindow::RestoreLook() {
  const QSettings settings;
  const QByteArray geometry = settings.value("window/geometry").toByteArray();
  if (!geometry.isEmpty()) restoreGeometry(geometry);
  Toolbar& toolbar = control_->Tessel().Controls().tbToolBar;
  for (const char* key : kToggles) {
    const bool wanted = settings.value(QString("toolbar/") + key, true).toBool();
    if (toolbar.Pressed(key) != wanted) toolbar.Press(key);
  }
  script_->RestoreLook();
  problems_->RestoreLook();
}

}  // namespace tessel
