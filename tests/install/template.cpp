// Prints the document that the installed control makes from a template.
#include <Tessel/ucTessel.h>

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <iostream>

static QAction* Template(const QWidget& control) {
  for (auto* menu : control.findChildren<QMenu*>()) {
    for (QAction* action : menu->actions()) {
      if (action->text() == "User.con: 1.4/1.5 ") return action;
    }
  }
  return nullptr;
}

static QWidget* Editor(const QWidget& control) {
  for (auto* part : control.findChildren<QWidget*>()) {
    if (part->accessibleName() == "Editor") return part;
  }
  return nullptr;
}

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  ucTessel control;
  control.show();
  QAction* fromTemplate = Template(control);
  if (fromTemplate == nullptr) return 1;
  fromTemplate->trigger();

  QAccessible::setActive(true);  // the text is read as a screen reader does
  auto* text = QAccessible::queryAccessibleInterface(Editor(control))->textInterface();
  std::cout << text->text(0, text->characterCount()).toStdString();
}
