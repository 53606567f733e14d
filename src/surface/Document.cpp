#include "surface/Document.h"

#include "text/Text.h"

namespace tessel {

std::string Document::Path() const { return IsUntitled() ? std::string() : TabAt().tag; }

bool Document::Modified() const { return TabAt().image == kRedDot; }

bool Document::MarkModified() const {
  if (!InFront() || Modified()) return false;
  SetModified(true);
  return true;
}

void Document::BelongTo(const std::string& path, const std::string& name) const {
  const int tab = Number(TabOf(slot_));
  controls_->tbsRtb.SetTabCaption(tab, AsciiLower(name));
  controls_->tbsRtb.SetTabTag(tab, path);
}

void Document::BecomeUntitled() const {
  const int tab = Number(TabOf(slot_));
  controls_->tbsRtb.SetTabCaption(tab, kUntitled);
  controls_->tbsRtb.SetTabTag(tab, kUntitled);
}

void Document::SetModified(bool modified) const {
  controls_->tbsRtb.SetTabImage(Number(TabOf(slot_)), modified ? kRedDot : kBlackDot);
}

void Document::BecomeFree() const {
  const int tab = Number(TabOf(slot_));
  controls_->tbsRtb.SetTabCaption(tab, "");
  controls_->tbsRtb.SetTabImage(tab, "");
  controls_->tbsRtb.SetTabTag(tab, "");
}

void Document::TakeTabOf(const Document& other) const { PutTab(other.TabAt()); }

void Document::PutTab(const Tab& tab) const {
  const int number = Number(TabOf(slot_));
  controls_->tbsRtb.SetTabCaption(number, tab.caption);
  controls_->tbsRtb.SetTabImage(number, tab.image);
  controls_->tbsRtb.SetTabTag(number, tab.tag);
}

void Document::BringToFront() const {
  Editor().SetLeft(0);
  Editor().SetWidth(controls_->picRtb.Width() - 60);
  Editor().SetHeight(controls_->picRtb.Height() - 60);
}

}  // namespace tessel
