// A combo box on the screen.
#pragma once

#include <QComboBox>
#include <QStringList>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "models/Lists.h"

namespace tessel {

/// Shows a ComboBox. Choosing an entry is a pick, also of the same entry again; typing is one
/// change a key.
class ComboBoxView : public QComboBox {
  Q_OBJECT

 public:
  ComboBoxView(ComboBox& model, QWidget* parent);

  /// Has a note painted beside each entry of the list, quieter than the entry. `notes` is asked
  /// whenever the list drops down; the entries themselves stay as they are.
  void ShowNotes(std::function<QStringList()> notes) { notes_ = std::move(notes); }

  void showPopup() override;

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void MakeEditable();
  void Typed(const QString& text);
  void Draw();
  void DrawText();
  void TakeNotes();

  ComboBox& model_;
  std::vector<std::string> shown_;
  std::function<QStringList()> notes_;
  bool typing_ = false;
  Subscription refresh_;
};

}  // namespace tessel
