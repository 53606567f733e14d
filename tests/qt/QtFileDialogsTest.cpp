// The desktop's file dialogs, answered as a person would.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <functional>

#include "models/CommonDialog.h"
#include "qt/services/QtFileDialogs.h"
#include "support/TempDirectory.h"

namespace tessel::test {
namespace {

using testing::ElementsAre;
using testing::Optional;

constexpr const char* kFilter = "CON Files (*.con)|*.con";

class FileDialogTest : public testing::Test {
 protected:
  FileDialogRequest Request(FileDialogRequest::Kind kind, int flags) {
    FileDialogRequest request;
    request.kind = kind;
    request.filter = kFilter;
    request.filterIndex = 1;
    request.initDir = directory.Path();
    request.flags = flags;
    return request;
  }
  std::optional<std::vector<std::string>> Open(int flags) {
    return QtFileDialogs().Show(Request(FileDialogRequest::Kind::kOpen, flags));
  }
  std::optional<std::vector<std::string>> Save() {
    return QtFileDialogs().Show(
        Request(FileDialogRequest::Kind::kSave, kOverwritePrompt | kHideReadOnly));
  }
  /// Waits until the modal window is one of that kind, and acts on it.
  template <class Dialog>
  void Once(std::function<void(Dialog&)> act) {
    QTimer::singleShot(5, &untilTheEnd, [this, act] {
      if (auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
        act(*dialog);
      } else {
        Once<Dialog>(act);
      }
    });
  }
  /// Enters the name and accepts.
  void Choose(const QString& name) {
    Once<QFileDialog>([name](QFileDialog& dialog) {
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(name);
      QMetaObject::invokeMethod(&dialog, "accept");
    });
  }
  /// Answers the next question.
  void Answer(QMessageBox::StandardButton answer) {
    Once<QMessageBox>([this, answer](QMessageBox& question) {
      asked = question.text();
      question.button(answer)->click();
    });
  }

  TempDirectory directory;
  QString asked;
  QObject untilTheEnd;
};

TEST(QtFileDialogs, TurnsFiltersIntoThoseOfTheToolkit) {
  EXPECT_EQ(NameFilters("CON Files (*.con)|*.con"), QStringList{"CON Files (*.con *.CON)"});
  EXPECT_EQ(NameFilters("Maps|*.map|All|*"), (QStringList{"Maps (*.map *.MAP)", "All (*)"}));
  EXPECT_TRUE(NameFilters("").isEmpty());
}

TEST_F(FileDialogTest, OpensInTheWantedDirectoryWithTheWantedFilter) {
  QString title;
  QString shown;
  QString filter;
  QFileDialog::FileMode mode = QFileDialog::AnyFile;
  Once<QFileDialog>([&](QFileDialog& dialog) {
    title = dialog.windowTitle();
    shown = dialog.directory().absolutePath();
    filter = dialog.selectedNameFilter();
    mode = dialog.fileMode();
    dialog.reject();
  });
  EXPECT_EQ(Open(0), std::nullopt);
  EXPECT_EQ(title, "Open");
  EXPECT_EQ(shown.toStdString(), directory.Path());
  EXPECT_EQ(filter, "CON Files (*.con *.CON)");
  EXPECT_EQ(mode, QFileDialog::ExistingFile);
}

TEST_F(FileDialogTest, ShowsANameThatLooksLikeMarkupAsItIs) {
  Qt::TextFormat format = Qt::AutoText;
  Choose("<b>none.con");
  Once<QMessageBox>([&](QMessageBox& notFound) {
    asked = notFound.text();
    format = notFound.textFormat();
    Once<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    notFound.accept();
  });
  EXPECT_EQ(Open(0), std::nullopt);
  EXPECT_TRUE(asked.contains("<b>none.con")) << asked.toStdString();
  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(FileDialogTest, GivesTheWholePathsOfSeveralFiles) {
  directory.Put("a.con", "");
  directory.Put("b.con", "");
  Choose("\"b.con\" \"a.con\"");
  EXPECT_THAT(Open(kAllowMultiSelect),
              Optional(ElementsAre(directory / "b.con", directory / "a.con")));
}

TEST_F(FileDialogTest, GivesANameWithoutAnExtensionTheOneOfTheFilter) {
  Choose("USER");
  EXPECT_THAT(Save(), Optional(ElementsAre(directory / "USER.con")));
}

TEST_F(FileDialogTest, AsksBeforeAFileIsReplaced) {
  directory.Put("User.con", "");
  Choose("User.con");
  Answer(QMessageBox::Yes);
  EXPECT_THAT(Save(), Optional(ElementsAre(directory / "User.con")));
  EXPECT_TRUE(asked.startsWith("User.con already exists.")) << asked.toStdString();
}

// A file whose name differs in case alone is another one, and stays.
TEST_F(FileDialogTest, TakesTheNameAsItWasTypedBesideAFileOfAnotherSpelling) {
  directory.Put("USER.CON", "");
  Choose("User");
  EXPECT_THAT(Save(), Optional(ElementsAre(directory / "User.con")));
}

// The desktop's own dialog comes where there is one.
TEST_F(FileDialogTest, LeavesTheDesktopItsOwnDialog) {
  bool toolkitsOwn = true;
  Once<QFileDialog>([&](QFileDialog& dialog) {
    toolkitsOwn = dialog.testOption(QFileDialog::DontUseNativeDialog);
    dialog.reject();
  });
  Open(0);
  EXPECT_FALSE(toolkitsOwn);
}

TEST_F(FileDialogTest, ShowsSizeKindAndDateWhole) {
  directory.Put("a-file-with-a-rather-long-name-of-its-own.con", std::string(123'456, 'x'));
  Once<QFileDialog>([&](QFileDialog& dialog) {
    const auto* list = dialog.findChild<QTreeView*>("treeView");
    EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 1; }));
    QTest::qWait(50);
    for (int column = 1; column < 4; ++column) {
      const QModelIndex index = list->model()->index(0, column, list->rootIndex());
      const int text = list->fontMetrics().horizontalAdvance(index.data().toString());
      EXPECT_GT(list->columnWidth(column), text) << column;
    }
    EXPECT_GT(list->columnWidth(0), list->columnWidth(3));
    dialog.reject();
  });
  Open(0);
}

TEST_F(FileDialogTest, IsOwnedByTheWindowThatAPersonWorksIn) {
  QWidget window;
  window.show();
  QApplication::setActiveWindow(&window);
  const QWidget* owner = nullptr;
  Once<QFileDialog>([&](QFileDialog& dialog) {
    owner = dialog.parentWidget();
    dialog.reject();
  });
  Open(0);
  EXPECT_EQ(owner, &window);
}

}  // namespace
}  // namespace tessel::test
