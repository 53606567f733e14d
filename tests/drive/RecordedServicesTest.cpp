#include <gtest/gtest.h>

#include "drive/RecordedServices.h"
#include "models/CommonDialog.h"

namespace tessel::drive {
namespace {

struct Dialogs {
  EventLog log;
  Answers answers;
  RecordedMessageBox messages{log, answers};
  RecordedFileDialogs files{log, answers};

  MessageAnswer Ask(MessageButtons buttons) {
    return messages.Show("text", MessageIcon::kNone, "", buttons);
  }
};

TEST(RecordedMessageBox, AnswersOkElseCancelElseNoWhenNobodyAnswers) {
  Dialogs dialogs;
  EXPECT_EQ(dialogs.Ask(MessageButtons::kOk), MessageAnswer::kOk);
  EXPECT_EQ(dialogs.Ask(MessageButtons::kYesNoCancel), MessageAnswer::kCancel);
  EXPECT_EQ(dialogs.Ask(MessageButtons::kYesNo), MessageAnswer::kNo);
}

TEST(RecordedMessageBox, UsesAnAnswerUpThatItHasNoButtonFor) {
  Dialogs dialogs;
  dialogs.answers.message = {MessageAnswer::kCancel, MessageAnswer::kYes};
  EXPECT_EQ(dialogs.Ask(MessageButtons::kYesNo), MessageAnswer::kNo);
  EXPECT_EQ(dialogs.Ask(MessageButtons::kYesNo), MessageAnswer::kYes);
}

TEST(RecordedMessageBox, RecordsEverythingThatStandsInTheBox) {
  Dialogs dialogs;
  dialogs.messages.Show("a\xff", MessageIcon::kQuestion, "title", MessageButtons::kYesNo);
  EXPECT_EQ(dialogs.log.Take(),
            Json::parse(R"([{"event":"message","text":"a\u00ff","icon":"question","title":"title",
                            "buttons":"YesNo","answer":"No"}])"));
  EXPECT_EQ(dialogs.log.Take(), Json::array());
}

TEST(RecordedFileDialogs, TakesSeveralFilesOnlyWhereTheDialogDoes) {
  Dialogs dialogs;
  const std::vector<std::string> several = {"/a", "/b"};
  FileDialogRequest request;
  dialogs.answers.open = {several, several};
  EXPECT_EQ(dialogs.files.Show(request), std::nullopt);
  request.flags = kAllowMultiSelect;
  EXPECT_EQ(dialogs.files.Show(request), several);
  EXPECT_EQ(dialogs.files.Show(request), std::nullopt);
}

TEST(RecordedFileDialogs, KeepsAnswersForOpeningAndForSavingApart) {
  Dialogs dialogs;
  dialogs.answers.open = {{"/opened"}};
  dialogs.answers.save = {{"/saved"}};
  FileDialogRequest request;
  request.kind = FileDialogRequest::Kind::kSave;
  EXPECT_EQ(dialogs.files.Show(request), std::vector<std::string>{"/saved"});
  request.kind = FileDialogRequest::Kind::kOpen;
  EXPECT_EQ(dialogs.files.Show(request), std::vector<std::string>{"/opened"});
}

TEST(RecordedFileDialogs, TakesAnEmptyPathForCancel) {
  Dialogs dialogs;
  dialogs.answers.save = {{""}};
  FileDialogRequest request;
  request.kind = FileDialogRequest::Kind::kSave;
  EXPECT_EQ(dialogs.files.Show(request), std::nullopt);
}

}  // namespace
}  // namespace tessel::drive
