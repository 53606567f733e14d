// Takes the pictures of the manual from the real window: pages, dialogs and menus.
#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <functional>
#include <iostream>

#include "host/MainWindow.h"
#include "host/language/Translations.h"
#include "models/Form.h"
#include "posix/HostDirectory.h"
#include "qt/editor/ScintillaView.h"
#include "qt/looks/Theme.h"
#include "qt/services/QtDesktop.h"
#include "safekeeping/DiskState.h"
#include "services/MemorySettingsStore.h"
#include "words/StarterWords.h"

using namespace tessel;

namespace {

/// Shows a form without waiting for a person: the picture is taken while it is open.
class PicturedForms : public ModalForms {
 public:
  std::function<void(Form&)> whileOpen;

  void ShowModal(Form& form) override {
    form.Show();
    QApplication::processEvents();
    if (whileOpen) whileOpen(form);
    form.Hide();
  }
};

class Photographer {
 public:
  Photographer(QString folder, MainWindow& window, PicturedForms& forms)
      : folder_(std::move(folder)), window_(window), forms_(forms) {}

  void Window(const QString& name) { Save(Grab(window_), name); }

  /// The window with a dialog in front of it, which `open` opens.
  void Dialog(const QString& name, const std::function<void()>& open) {
    forms_.whileOpen = [&](Form& form) { Save(InFront(*window_.Control().DialogFor(form)), name); };
    open();
    forms_.whileOpen = nullptr;
  }

  /// The window with an open menu in front of it.
  void Menu(const QString& name, const std::function<void()>& open) {
    open();
    QApplication::processEvents();
    QWidget* menu = QApplication::activePopupWidget();
    if (menu == nullptr) throw std::runtime_error("no menu has opened for " + name.toStdString());
    Save(InFront(*menu), name);
    menu->close();
  }

  bool Failed() const { return failed_; }

 private:
  static QPixmap Grab(QWidget& widget) {
    QApplication::processEvents();
    return widget.grab();
  }

  QPixmap InFront(QWidget& front) {
    QPixmap picture = Grab(window_);
    QPainter painter(&picture);
    const QPixmap top = Grab(front);
    QPoint at = front.isWindow() && qobject_cast<QMenu*>(&front) != nullptr
                    ? window_.mapFromGlobal(front.pos())
                    : window_.rect().center() - front.rect().center();
    painter.setPen(window_.palette().color(QPalette::Mid));
    painter.drawPixmap(at, top);
    painter.drawRect(QRect(at, front.size()).adjusted(-1, -1, 0, 0));
    return picture;
  }

  void Save(const QPixmap& picture, const QString& name) {
    if (picture.save(folder_ + "/" + name + ".png")) return;
    std::cerr << "cannot write " << name.toStdString() << ".png\n";
    failed_ = true;
  }

  QString folder_;
  MainWindow& window_;
  PicturedForms& forms_;
  bool failed_ = false;
};

void RightClick(ScintillaView& view, QPoint at) {
  for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
    const QPoint global = view.viewport()->mapToGlobal(at);
    const auto held = type == QEvent::MouseButtonPress ? Qt::RightButton : Qt::NoButton;
    QMouseEvent event(type, at, global, Qt::RightButton, held, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &event);
  }
}

void TakePictures(Photographer& camera, MainWindow& window) {
  ucTessel& tessel = window.Control().Tessel();
  HostedControls& c = tessel.Controls();
  const auto page = [&](SettingsPage which) { c.tbsCon.Press(which + 1); };
  const auto button = [&](const char* key) { return [&c, key] { c.tbToolBar.Press(key); }; };

  c.tbToolBar.PressMenuItem("FileNew", 1);
  camera.Window("window");
  c.lstPlayers.Pick(0);
  camera.Window("player");
  page(kWeaponPage);
  c.lstWeapInfo.Pick(2);
  c.lstWeapon.Pick(1);
  camera.Window("weapon");
  page(kEnemyPage);
  c.lstEnemy.Pick(3);
  camera.Window("enemy");
  page(kMiscPage);
  c.lstConMisc.Pick(0);
  camera.Window("misc");
  page(kLevelPage);
  c.cboEpisode.Pick(1);
  c.txtTitle.Enter();
  camera.Window("levels");
  page(kFunctionsPage);
  c.txtSearch.Type("ifpdist");
  camera.Window("functions");

  camera.Dialog("find", button("Find"));
  camera.Dialog("randomizer", button("RandAll"));
  camera.Dialog("words", [&] { c.cmdAddword.Press(); });
  camera.Menu("popup", [&] { RightClick(*window.Control().CurrentEditorView(), {220, 90}); });

  page(kPlayerPage);
  c.tbToolBar.Press("Convert");
  c.rtbCon[0].Find("QSIZE", 0);
  c.rtbCon[0].SetSelLength(0);
  camera.Window("converted");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "Usage: tessel-pictures FOLDER [--dark]\n";
    return 2;
  }
  int qtArguments = 1;
  QApplication application(qtArguments, argv);
  const Translations english{QLocale(QLocale::English)};
  const bool dark = argc > 2 && QString(argv[2]) == "--dark";
  ApplyTheme(application, dark ? ColourScheme::kDark : ColourScheme::kLight);

  MemorySettingsStore settings;
  QtDesktop desktop;
  PicturedForms forms;
  GuardedFiles files(desktop.files);
  const Services plain = desktop.With(settings, DefaultHostDirectory());
  const Services services{plain.messages,  plain.fileDialogs,  forms,
                          plain.clipboard, plain.settings,     plain.pointer,
                          files,           plain.random,       plain.focus,
                          plain.loop,      plain.hostDirectory};
  OfferStarterWords(settings, desktop.files, services.hostDirectory + "/words.txt");
  MainWindow window(services, desktop.widgets, files);
  window.resize(900, 640);
  window.show();
  QDir().mkpath(argv[1]);
  Photographer camera(argv[1], window, forms);
  TakePictures(camera, window);
  return camera.Failed() ? 1 : 0;
}
