// A combo box on the screen.
#pragma once

#include <QComboBox>
#include <string>
#include <vector>

#include "models/Lists.h"

namespace tessel {

/// Shows a ComboBox. Choosing an entry is a pick, also of the same entry again; typing is one
/// change a key.
class ComboBoxView : public QComboBox {
  Q_OBJECT

 public:
  ComboBoxView(ComboBox& model, QWidget* parent);

 protected:
  void wheelEvent(QWheelEvent* event) override;

 private:
  void MakeEditable();
  void Typed(const QString& text);
  void Draw();
  void DrawText();

  ComboBox& model_;
  std::vector<std::string> shown_;
  bool typing_ = false;
  Subscription refresh_;
};

}  // namespace tessel
