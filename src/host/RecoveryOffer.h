// The quiet offer of texts that an earlier run could not save.
#pragma once

#include <functional>
#include <memory>

#include "control/ucTessel.h"
#include "host/NoticeBar.h"
#include "safekeeping/RecoveryStore.h"
#include "services/Services.h"

namespace tessel {

/// A bar above the control, there while unsaved texts of a run that crashed or was killed wait for
/// an answer. Recover shows them as modified documents; Discard asks once more; Later leaves them
/// for the next start; Show Differences shows how they differ from their files.
class RecoveryOffer : public NoticeBar {
  Q_OBJECT

 public:
  /// Shows itself when there is anything to offer. `keepNow` makes sure that what was recovered is
  /// kept again, and says whether that worked: only then the old texts go.
  RecoveryOffer(ucTessel& tessel, Files& files, MessageBox& messages,
                std::unique_ptr<AbandonedTexts> texts, std::function<bool()> keepNow,
                QWidget* parent);

 private:
  void Recover();
  bool MayGoOverItsFile(const KeptText& text);
  void Discard();
  void Later();
  void Compare();
  QString Sentence() const;

  ucTessel& tessel_;
  Files& files_;
  MessageBox& messages_;
  std::unique_ptr<AbandonedTexts> texts_;
  std::function<bool()> keepNow_;
};

}  // namespace tessel
