#include "check/facts/PanelDefines.h"

#include "text/Text.h"
#include "text/TextSearch.h"

namespace tessel::check {
namespace {

using language::Keyword;

/// What is looked for among the names of a file.
class ItemNames {
 public:
  ItemNames() : names_(AllPanelItems().size()) {
    const auto items = AllPanelItems();
    for (std::size_t i = 0; i < items.size(); ++i) {
      names_.Add({items[i].define, 0, static_cast<std::uint32_t>(i)});
      if (items[i].byBeginning) beginnings_.push_back(i);
    }
  }

  const NamedPlace* Find(std::string_view name) const { return names_.Find(name); }
  std::span<const std::size_t> Beginnings() const { return beginnings_; }

 private:
  NameTable names_;
  std::vector<std::size_t> beginnings_;
};

const ItemNames& AllItemNames() {
  static const ItemNames names;
  return names;
}

bool BeginsWith(std::string_view name, std::string_view beginning) {
  return language::SameName(name.substr(0, beginning.size()), beginning);
}

}  // namespace

std::span<const PanelItem> AllPanelItems() {
  static const std::vector<PanelItem> items = PanelItems();
  return items;
}

std::vector<const Statement*> PanelDefinesOf(const FileFacts& file) {
  const ItemNames& names = AllItemNames();
  const auto items = AllPanelItems();
  std::vector<const Statement*> exact(items.size()), beginning(items.size());
  for (const Statement& define : file.Statements(Keyword::kDefine)) {
    const std::string_view name = file.WordText(define, 0);
    if (const NamedPlace* place = names.Find(name)) {
      if (exact[place->statement] == nullptr) exact[place->statement] = &define;
    }
    for (const std::size_t i : names.Beginnings()) {
      if (beginning[i] == nullptr && BeginsWith(name, items[i].define)) beginning[i] = &define;
    }
  }
  for (std::size_t i = 0; i < items.size(); ++i) {
    if (exact[i] == nullptr) exact[i] = beginning[i];
  }
  return exact;
}

bool IsUserFile(const FileFacts& file) { return !file.Statements(Keyword::kGameStartup).empty(); }

bool IsNewerDialect(const FileFacts& file) {
  return FindText(file.Text(), "QSIZE", 0, std::ssize(file.Text()), kFindDefault) != kNotFound;
}

}  // namespace tessel::check
