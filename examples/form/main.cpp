// Shows a form whose editor is named in the form alone.
#include <QApplication>
#include <QFile>
#include <QUiLoader>
#include <QWidget>
#include <iostream>
#include <memory>

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "Usage: form-example FORM.ui\n";
    return 2;
  }
  QFile file(QFile::decodeName(argv[1]));
  if (!file.open(QIODevice::ReadOnly)) {
    std::cerr << "form-example: " << file.errorString().toStdString() << "\n";
    return 1;
  }
  QUiLoader loader;
  const std::unique_ptr<QWidget> form(loader.load(&file));
  if (form == nullptr || !loader.availableWidgets().contains("ucTessel")) {
    std::cerr << "form-example: the control's plugin is not in QT_PLUGIN_PATH "
              << loader.errorString().toStdString() << "\n";
    return 1;
  }
  form->show();
  return QApplication::exec();
}
