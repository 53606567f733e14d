#include "surface/Layout.h"

#include <cmath>

#include "surface/CurrentEditor.h"

namespace tessel {

void Layout(HostedControls& c) {
  const Twips width = std::nearbyint(c.scaleWidth);
  const Twips height = c.scaleHeight;

  c.tbToolBar.SetWidth(width);
  c.tbsCon.SetWidth(width - 20);
  c.tbsCon.SetTop(c.tbToolBar.Top() + c.tbToolBar.Height());

  c.tbsRtb.SetTop(c.tbsCon.Top() + c.tbsCon.Height());
  c.tbsRtb.SetHeight(height - (c.tbToolBar.Height() + c.tbsCon.Height()));
  c.tbsRtb.SetWidth(width - 20);

  for (int page = 0; page < c.picCon.Count(); ++page) {
    c.picCon[page].SetTop(c.tbsCon.Top() + 350);
    c.picCon[page].SetWidth(width - 220);
    c.fraCon[page].SetWidth(width - 250);
  }

  c.picRtb.SetWidth(width - 160);
  c.picRtb.SetTop(c.tbsRtb.Top() + 60);
  c.picRtb.SetHeight(c.tbsRtb.Height() - 400);

  RichTextBox& editor = CurrentEditor(c);
  editor.SetWidth(width - 200);
  editor.SetLeft(0);
  editor.SetHeight(c.picRtb.Height() - 60);
}

}  // namespace tessel
