// Lists and combo boxes.
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>

#include "drive/qt/ControlComparisons.h"
#include "qt/base/QtText.h"

namespace tessel::drive {
namespace {

template <class EntryAt>
void CompareEntries(const ListControl& model, int count, const EntryAt& shownAt,
                    Comparison& comparison) {
  comparison.Expect("number of entries", long{model.ListCount()}, long{count});
  for (int i = 0; i < std::min(count, model.ListCount()); ++i) {
    const QString entry = ShownText(model.List(i));
    const QString shown = shownAt(i);
    if (shown == entry) continue;
    return comparison.Expect("entry " + std::to_string(i), entry, shown);  // the others may follow
  }
}

QString TextOf(const QComboBox& box) {
  if (box.lineEdit() != nullptr) return box.lineEdit()->text();
  return box.currentIndex() < 0 ? box.placeholderText() : box.currentText();
}

int FirstSelected(const QListWidget& list) {
  const auto selected = list.selectionModel()->selectedRows();
  return selected.isEmpty() ? kNoSelection : selected.first().row();
}

}  // namespace

void CompareListBox(const ListBox& model, QWidget& widget, Comparison& comparison) {
  const auto* list = qobject_cast<const QListWidget*>(&widget);
  if (list == nullptr) return comparison.Note("widget", "a list", "another kind");
  CompareEntries(
      model, list->count(), [list](int i) { return list->item(i)->text(); }, comparison);
  comparison.Expect("current entry", long{model.ListIndex()}, long{list->currentRow()});
  comparison.Expect("selected entry", long{model.ListIndex()}, long{FirstSelected(*list)});
}

void CompareComboBox(const ComboBox& model, QWidget& widget, Comparison& comparison) {
  const auto* box = qobject_cast<const QComboBox*>(&widget);
  if (box == nullptr) return comparison.Note("widget", "a combo box", "another kind");
  CompareEntries(
      model, box->count(), [box](int i) { return box->itemText(i); }, comparison);
  comparison.Expect("selected entry", long{model.ListIndex()}, long{box->currentIndex()});
  comparison.Expect("text", ShownText(model.Text()), TextOf(*box));
}

}  // namespace tessel::drive
