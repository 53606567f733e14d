// A form on the screen.
#pragma once

#include <QDialog>

#include "models/Buttons.h"
#include "models/Form.h"
#include "qt/base/AccessibleNames.h"
#include "qt/base/WidgetMap.h"

namespace tessel {

/// Shows a Form: it opens when the model is shown and closes when the model is hidden, so whoever
/// shows the model needs no dialog of the toolkit. Return presses the form's default button; Escape
/// and the window's close button press its cancel button, or hide a form that has none.
class FormDialog : public QDialog {
  Q_OBJECT

 public:
  FormDialog(Form& model, WidgetMap& widgets, QWidget* parent);

  Form& Model() { return model_; }
  const Form& Model() const { return model_; }

  void reject() override;

 protected:
  /// The widget that has the focus whenever the form opens, or null: it stays where code put it.
  virtual QWidget* FirstWidget() { return nullptr; }

  template <class View, class Control>
  View* Make(Control& control, const QString& accessibleName) {
    auto* view = new View(control, this);
    NameForReaders(*view, accessibleName);
    widgets_.Add(control, view);
    return view;
  }
  /// Makes a command button and, where the model says so, the one that Return presses. The letter
  /// is marked where the caption has no mark.
  QWidget* MakeButton(CommandButton& button, const QString& accessibleName, QChar mnemonic = {});

  void closeEvent(QCloseEvent* event) override;

 private:
  void Draw();
  void Open();

  Form& model_;
  WidgetMap& widgets_;
  Subscription refresh_;
};

}  // namespace tessel
