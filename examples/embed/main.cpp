// A Qt program with a CON editor in its window.
#include <Tessel/ucTessel.h>

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QVBoxLayout>

class Window : public QWidget {
 public:
  Window() : editor_(new ucTessel(this)), status_(new QLabel(this)) {
    auto* column = new QVBoxLayout(this);
    column->addWidget(editor_, 1);
    column->addWidget(status_);
    // The texts hold what the user typed, and no markup.
    status_->setTextFormat(Qt::PlainText);
    connect(editor_, &ucTessel::SettingTextColor, status_, &QLabel::setText);
    connect(editor_, &ucTessel::TextRefused, status_, &QLabel::setText);
    connect(editor_, &ucTessel::DocumentChanged, this, &Window::ShowName);
    ShowName();
  }

  void Open(const QString& file) { editor_->OpenFile(file); }

 protected:
  void closeEvent(QCloseEvent* event) override {
    event->setAccepted(!editor_->Running() && editor_->CloseAll());
  }

 private:
  void ShowName() {
    setWindowTitle(editor_->DocumentName() + "[*]");
    setWindowModified(editor_->DocumentModified());
  }

  ucTessel* editor_;
  QLabel* status_;
};

int main(int argc, char** argv) {
  const QApplication application(argc, argv);

  Window window;
  for (const QString& file : QApplication::arguments().mid(1)) window.Open(file);
  window.resize(900, 640);
  window.show();
  return QApplication::exec();
}
