// Every text that widgets show, as the toolkit shows it.
#pragma once

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QTabBar>
#include <QTextDocument>
#include <algorithm>
#include <string>
#include <vector>

namespace tessel::test {

struct ShownText {
  std::string where;
  QString text;
};

/// What a person reads of a text that the toolkit may take for markup.
inline QString AsRead(const QString& text) {
  if (!Qt::mightBeRichText(text)) return text;
  QTextDocument document;
  document.setHtml(text);
  return document.toPlainText();
}

/// The labels, tooltips and items of all windows of the program, and the tooltips of their actions.
inline std::vector<ShownText> ShownTexts() {
  std::vector<ShownText> texts;
  const auto add = [&](const QObject& where, const char* what, const QString& text) {
    const std::string owner = where.metaObject()->className();
    if (!text.isEmpty()) texts.push_back({owner + " " + what, AsRead(text)});
  };
  for (QWidget* widget : QApplication::allWidgets()) {
    add(*widget, "tooltip", widget->toolTip());
    add(*widget, "help", widget->whatsThis());
    for (const QAction* action : widget->actions()) add(*action, "tooltip", action->toolTip());
    if (const auto* label = qobject_cast<QLabel*>(widget)) {
      const bool plain = label->textFormat() == Qt::PlainText;
      plain ? texts.push_back({"plain label", label->text()}) : add(*label, "text", label->text());
    }
    if (const auto* tabs = qobject_cast<QTabBar*>(widget)) {
      for (int i = 0; i < tabs->count(); ++i) add(*tabs, "tooltip of a tab", tabs->tabToolTip(i));
    }
    const auto* view = qobject_cast<QAbstractItemView*>(widget);
    if (view == nullptr || view->model() == nullptr) continue;
    for (int row = 0; row < view->model()->rowCount(); ++row) {
      for (int column = 0; column < view->model()->columnCount(); ++column) {
        const QModelIndex item = view->model()->index(row, column);
        add(*view, "tooltip of an item", item.data(Qt::ToolTipRole).toString());
      }
    }
  }
  return texts;
}

/// Those in which a part of a name can be read.
inline std::vector<ShownText> ShownTextsWith(const QString& part) {
  std::vector<ShownText> texts = ShownTexts();
  std::erase_if(texts, [&](const ShownText& shown) {
    return !shown.text.contains(part, Qt::CaseInsensitive);
  });
  return texts;
}

}  // namespace tessel::test
