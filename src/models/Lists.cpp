#include "models/Lists.h"

namespace tessel {

void ListControl::AddItem(std::string entry) { InsertItem(ListCount(), std::move(entry)); }

void ListControl::AddItems(const std::vector<std::string>& entries) {
  list_.insert(list_.end(), entries.begin(), entries.end());
  Refresh.Raise();
}

void ListControl::InsertItem(int position, std::string entry) {
  list_.insert(list_.begin() + position, std::move(entry));
  if (listIndex_ >= position) ++listIndex_;
  Refresh.Raise();
}

void ListControl::RemoveItem(int position) {
  list_.erase(list_.begin() + position);
  if (listIndex_ == position) {
    listIndex_ = kNoSelection;
  } else if (listIndex_ > position) {
    --listIndex_;
  }
  Refresh.Raise();
}

void ListControl::Clear() {
  list_.clear();
  listIndex_ = kNoSelection;
  Refresh.Raise();
}

void ListControl::SelectQuietly(int index) {
  Assign(listIndex_, index >= 0 && index < ListCount() ? index : kNoSelection);
}

void ListControl::SetListIndex(int index) {
  SelectQuietly(index);
  Click.Raise();
}

void ComboBox::SetText(std::string text) {
  SelectQuietly(kNoSelection);
  Assign(text_, std::move(text));
  Change.Raise();
}

void ComboBox::Clear() {
  text_.clear();
  ListControl::Clear();
}

void ComboBox::SetListIndex(int index) {
  SelectQuietly(index);
  if (ListIndex() != kNoSelection) Assign(text_, List(ListIndex()));
  Click.Raise();
}

}  // namespace tessel
