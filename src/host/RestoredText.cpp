#include "host/RestoredText.h"

#include "services/Paths.h"

namespace tessel {
namespace {

bool HasOwnChanges(const DocumentList& documents, const std::string& path) {
  const auto open = documents.WithPath(path);
  return open && open->Modified();
}

bool ShowUnchangedDocument(ucTessel& tessel, Files& files, const std::string& path) {
  const DocumentList& documents = tessel.OpenDocuments();
  if (path.empty() || !FileExists(files, path) || HasOwnChanges(documents, path)) return false;
  if (!tessel.OpenFile(path)) return false;
  return documents.Current().HasPath(path) && !documents.Current().Modified();
}

}  // namespace

void ReplaceText(RichTextBox& editor, const std::string& bytes) {
  if (editor.Bytes() == bytes) return;
  editor.SelectByHand(0, editor.Length());
  if (editor.Length() > 0) editor.SetSelColor(kBlack);  // else all takes the first one's colour
  editor.Type(bytes);
  editor.SetSelStart(0);
}

bool ShowRestoredText(ucTessel& tessel, Files& files, const std::string& path,
                      const std::string& bytes) {
  if (tessel.Running()) return false;
  bool shown = false;
  if (ShowUnchangedDocument(tessel, files, path)) {
    tessel.Run([&] {
      ReplaceText(tessel.OpenDocuments().CurrentEditor(), bytes);
      shown = true;
    });
  }
  return shown || tessel.ShowAsUntitled(bytes);
}

}  // namespace tessel
