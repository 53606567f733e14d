// Mnemonics of bars that come and go.
#pragma once

#include <QHash>
#include <QPointer>
#include <QSet>
#include <QTimer>
#include <QWidget>

namespace tessel {

/// Gives the captions of the window's bars letters that nothing else in sight has: what the menu
/// bar and the panel have is theirs, and an upper bar comes before a lower one. A caption keeps the
/// letter that it was made with where it can, and has none where no letter is left.
class FreeLetters : public QObject {
  Q_OBJECT

 public:
  /// `control` outlives this.
  explicit FreeLetters(QWidget& control);

  /// A bar may stand inside the control, and may go.
  void AddBar(QWidget& bar);

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Caption {
    QString made;   ///< as it came
    QString shown;  ///< as it is shown now
  };

  void Assign();
  void Show(QWidget& part, const QString& caption);
  /// Those with a caption, the upper bar's first.
  QList<QWidget*> PartsInSight() const;
  QString MadeAs(QWidget& part);
  QSet<QChar> LettersOfOthers() const;
  bool IsInBar(const QWidget& part) const;
  /// Those in sight, the upper one first.
  QList<QWidget*> BarsInSight() const;

  QWidget& control_;
  QList<QPointer<QWidget>> bars_;
  QTimer soon_;
  QHash<const QObject*, Caption> captions_;
};

}  // namespace tessel
