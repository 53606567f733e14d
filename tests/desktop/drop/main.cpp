// A window from which files are dragged, as from a file manager: drag_source FILE... Tells on
// standard output whether whoever is under the pointer would take them ("taken", "refused").
#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>
#include <iostream>

namespace {

class Source : public QWidget {
 public:
  explicit Source(QList<QUrl> files) : files_(std::move(files)) {
    setWindowTitle("Files");
    setWindowFlag(Qt::FramelessWindowHint);
    setGeometry(1020, 300, 70, 70);
  }

 protected:
  void mousePressEvent(QMouseEvent*) override {
    auto* drag = new QDrag(this);
    auto* files = new QMimeData;
    files->setUrls(files_);
    drag->setMimeData(files);
    connect(drag, &QDrag::actionChanged, this, [](Qt::DropAction action) {
      std::cout << (action == Qt::IgnoreAction ? "refused" : "taken") << std::endl;
    });
    drag->exec(Qt::CopyAction);
  }

 private:
  QList<QUrl> files_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QList<QUrl> files;
  for (int i = 1; i < argc; ++i) files += QUrl::fromLocalFile(argv[i]);
  Source source(files);
  source.show();
  return QApplication::exec();
}
