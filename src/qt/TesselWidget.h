// The control as a widget.
#pragma once

#include <QWidget>
#include <memory>
#include <string>
#include <vector>

#include "control/ucTessel.h"
#include "qt/base/WidgetMap.h"

namespace tessel {

class EditorHost;
class FormDialog;
class ScintillaView;

/// ucTessel with a view for each of its hosted controls, to be embedded in any Qt program.
///
/// The services outlive the widget, as does the map, in which the widget enters the widgets of all
/// controls: pass the same map to the services that need it (QtFocus). Construction runs the
/// control's start-up.
class TesselWidget : public QWidget {
  Q_OBJECT

 public:
  TesselWidget(const Services& services, WidgetMap& widgets, QWidget* parent = nullptr,
               const ucTessel::Options& options = {});
  ~TesselWidget() override;

  ucTessel& Tessel() { return *tessel_; }
  const ucTessel& Tessel() const { return *tessel_; }
  /// The control's method of that name, with the toolkit's strings.
  void SetTesselVersion(QString& version, QString& defaultVersion);

  /// The widget on which a person acts to use that control, also for the controls of forms; null
  /// for controls that show nothing (the timer, the common dialog). For a tab strip it is the row
  /// of tabs.
  QWidget* WidgetFor(const Control& control) const { return widgets_.Find(control); }
  /// The dialog that shows the form, or null.
  QWidget* DialogFor(const Form& form) const;
  /// The view of the current document's editor.
  ScintillaView* CurrentEditorView() const;

  /// Puts a bar of the host's above the text, within its frame: while it is shown the editors are
  /// lower by it, and nothing else moves. The topmost bar is the last one put there.
  void ShowAboveText(QWidget& bar);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  /// A text could not be taken into the editor; the sentence says why.
  void textRefused(const QString& reason);
  /// The control has a status line for its host.
  void statusText(const QString& text);
  /// The current document, its name or its marker changed.
  void documentChanged();
  /// The caret or the selection of the current editor moved.
  void caretMoved();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void BuildPanel();
  void BuildDocuments();
  void BuildForms();
  void AddEditor(RichTextBox& editor);
  void RemoveEditor(RichTextBox& editor);
  void FollowGeometry(Control& control, QWidget& view);
  void WatchKeys(QObject& object);
  bool TakeKey(const QKeyEvent& event);
  void MoveToNextPart(bool forward);

  struct Editor {
    ScintillaView* view = nullptr;
    Subscription refresh;
  };

  WidgetMap& widgets_;
  Clipboard& clipboard_;
  std::unique_ptr<ucTessel> tessel_;
  EditorHost* editorHost_ = nullptr;
  std::vector<Editor> editors_;
  std::vector<FormDialog*> dialogs_;
  std::vector<Subscription> subscriptions_;
};

}  // namespace tessel
