// A Scintilla document without Scintilla, for tests.
#pragma once

#include <algorithm>
#include <functional>
#include <string>

#include "qt/editor/ScintillaDocument.h"

namespace tessel {

struct MemoryDocument : ScintillaDocument {
  std::string utf8;
  SciRange selection;
  bool selectionHidden = false;
  bool focused = true;
  SciRange page = {0, 1'000'000};
  std::string styles;  // one for each byte of utf8
  SciPosition styledEnd = 0;
  char hiddenStyle = '\0';
  int replacements = 0;

  std::function<void(SciPosition at, SciPosition length)> beforeInsertion;
  std::function<void(SciPosition at, SciPosition length)> beforeDeletion;
  std::function<void()> halfWay;  // between the deletion and the insertion of a replacement

  SciPosition Size() const override { return std::ssize(utf8); }
  std::string_view Utf8(SciPosition at, SciPosition length) const override {
    return std::string_view(utf8).substr(Index(at), Index(length));
  }
  void Replace(SciPosition at, SciPosition removed, std::string_view inserted) override {
    const std::string piece(inserted);
    ++replacements;
    if (removed > 0) {
      if (beforeDeletion) beforeDeletion(at, removed);
      utf8.erase(Index(at), Index(removed));
      styles.erase(Index(at), Index(removed));
    }
    if (halfWay) halfWay();
    if (!piece.empty()) {
      if (beforeInsertion) beforeInsertion(at, std::ssize(piece));
      utf8.insert(Index(at), piece);
      styles.insert(Index(at), piece.size(), '\0');
    }
    styledEnd = std::min(styledEnd, at);
    selection = {std::min(selection.start, Size()), std::min(selection.end, Size())};
  }
  SciRange Selection() const override { return selection; }
  void Select(SciRange range) override { selection = range; }
  void HideSelection(bool hidden) override { selectionHidden = hidden; }
  bool HasFocus() const override { return focused; }
  SciRange Page() const override {
    return {std::min(page.start, Size()), std::min(page.end, Size())};
  }
  SciPosition StyledEnd() const override { return styledEnd; }
  void SetStyledEnd(SciPosition end) override { styledEnd = end; }
  void ForgetStyles(SciPosition from) override { styledEnd = std::min(styledEnd, from); }
  void SetStyles(SciPosition at, std::string_view pieces) override {
    styles.replace(Index(at), pieces.size(), pieces);
    styledEnd = at + std::ssize(pieces);
  }
  void PaintStyle(int, const QColor&) override {}
  void HideStyle(int style) override { hiddenStyle = static_cast<char>(style); }

 private:
  static std::size_t Index(SciPosition position) { return static_cast<std::size_t>(position); }
};

}  // namespace tessel
