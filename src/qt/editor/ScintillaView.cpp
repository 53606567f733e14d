#include "qt/editor/ScintillaView.h"

#include <QMetaObject>

namespace tessel {

ScintillaView::ScintillaView(RichTextBox& model, Clipboard& clipboard, QWidget* parent)
    : QsciScintillaBase(parent),
      model_(model),
      clipboard_(clipboard),
      accessibility_(*this),
      document_(*this),
      mirror_(model, document_) {
  SetUp();
  ListenToScintilla();
  subscriptions_ = {mirror_.TextChanged.Connect([this] { ShowLineNumbers(); }),
                    mirror_.Refused.Connect([this](const QString& why) { Refuse(why); }),
                    mirror_.TakeOverWanted.Connect([this] {
                      QMetaObject::invokeMethod(
                          this, [this] { mirror_.TakeOver(); }, Qt::QueuedConnection);
                    })};
  mirror_.Follow();
}

void ScintillaView::ListenToScintilla() {
  connect(this, &QsciScintillaBase::SCN_MODIFIED, this,
          [this](int position, int type, const char*, int length) {
            if ((type & SC_MOD_BEFOREINSERT) != 0) mirror_.BeforeInsertion(position, length);
            if ((type & SC_MOD_BEFOREDELETE) != 0) mirror_.BeforeDeletion(position, length);
          });
  connect(this, &QsciScintillaBase::SCN_UPDATEUI, this,
          [this] { mirror_.SelectionMayHaveMoved(); });
  connect(this, &QsciScintillaBase::SCN_STYLENEEDED, this,
          [this](int end) { mirror_.ColoursNeeded(end); });
  connect(this, &QsciScintillaBase::SCN_ZOOM, this, [this] { FitLineNumbers(); });
}

}  // namespace tessel
