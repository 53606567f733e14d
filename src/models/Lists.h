// List boxes and combo boxes.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "models/Control.h"

namespace tessel {

/// "No entry selected".
inline constexpr int kNoSelection = -1;

/// Entries with at most one of them selected. Entries count from 0.
class ListControl : public Control {
 public:
  using Control::Control;

  int ListCount() const { return static_cast<int>(list_.size()); }
  const std::vector<std::string>& List() const { return list_; }
  const std::string& List(int entry) const { return list_.at(static_cast<std::size_t>(entry)); }
  int ListIndex() const { return listIndex_; }

  /// Appends an entry, or many at once, or inserts one in front of `position`.
  void AddItem(std::string entry);
  void AddItems(const std::vector<std::string>& entries);
  void InsertItem(int position, std::string entry);
  /// Takes an entry out. Its selection, if it was selected, is gone without an event.
  void RemoveItem(int position);
  /// Takes all entries and the selection away, without an event.
  virtual void Clear();

  /// Selects an entry and raises Click, also when it was selected already. An index outside the
  /// list means "no selection".
  virtual void SetListIndex(int index);

  /// What a person does: picks an entry of the list.
  void Pick(int entry) { SetListIndex(entry); }

  Event<> Click;

 protected:
  void SelectQuietly(int index);

 private:
  std::vector<std::string> list_;
  int listIndex_ = kNoSelection;
};

class ListBox : public ListControl {
 public:
  using ListControl::ListControl;

  /// What a person does: a double click, which selects first.
  void PickTwice(int entry) {
    Pick(entry);
    DblClick.Raise();
  }

  Event<> DblClick;
};

/// A text with a list of suggestions under it.
class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;

  const std::string& Text() const { return text_; }
  /// Sets the text and raises Change, also when the text stays equal. No entry is selected
  /// afterwards.
  void SetText(std::string text);
  /// Takes the entries, the selection and the text away, without an event.
  void Clear() override;
  /// As for every list; with an entry selected the text becomes that entry, without a Change.
  void SetListIndex(int index) override;

  /// False when only entries of the list can be chosen.
  bool Editable() const { return editable_; }
  void SetEditable(bool editable) { Assign(editable_, editable); }

  /// What a person does: replaces the whole text by typing.
  void Type(std::string text) { SetText(std::move(text)); }

  Event<> Change;

 private:
  std::string text_;
  bool editable_ = true;
};

}  // namespace tessel
