#include "host/panel/RandomizeEnd.h"

#include <utility>

namespace tessel {

RandomizeEnd::RandomizeEnd(ucTessel& tessel) : tessel_(tessel) {
  HostedControls& c = tessel_.Controls();
  // A person's own click has ended its command before anybody else hears of it.
  const auto note = [this] { walked_ = walked_ || tessel_.Running(); };
  subscriptions_ = {
      c.lstPlayers.Click.Connect(note),
      c.lstWeapon.Click.Connect(note),
      c.lstEnemy.Click.Connect(note),
      c.lstConMisc.Click.Connect(note),
      tessel_.CommandEnded.Connect([this] { OnCommandEnded(); }),
  };
}

void RandomizeEnd::OnCommandEnded() {
  if (!std::exchange(walked_, false)) return;
  Walked.Raise();
  tessel_.Run([this] {
    RichTextBox& editor = tessel_.OpenDocuments().CurrentEditor();
    editor.SetSelStart(editor.SelStart());
  });
}

}  // namespace tessel
