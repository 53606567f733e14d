// The least program with the editor's widget: what a window and Scintilla cost by themselves.
#include <Qsci/qsciscintilla.h>

#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QTextStream>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QFile file(QApplication::arguments().value(1));
  if (!file.open(QIODevice::ReadOnly)) {
    QTextStream(stderr) << "usage: least_editor FILE\n";
    return 1;
  }
  QMainWindow window;
  auto* editor = new QsciScintilla(&window);
  editor->SendScintilla(QsciScintillaBase::SCI_SETUNDOCOLLECTION, 0UL);  // opening is no edit
  editor->SendScintilla(QsciScintillaBase::SCI_SETTEXT, file.readAll().constData());
  editor->SendScintilla(QsciScintillaBase::SCI_SETUNDOCOLLECTION, 1UL);
  editor->setMarginLineNumbers(0, true);
  editor->setMarginWidth(0, QStringLiteral("000000"));
  window.setCentralWidget(editor);
  window.resize(900, 560);
  window.show();
  return QApplication::exec();
}
