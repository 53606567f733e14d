// The window in other languages: every string is there, and whole.
#include <QDir>
#include <QFile>
#include <QMenuBar>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <map>

#include "HostFixture.h"
#include "host/language/Translations.h"
#include "host/menu/MenuTable.h"

namespace tessel::test {
namespace {

struct Message {
  QString source;
  QStringList translations;  // one for each plural form
  bool numerus = false;
  bool finished = true;
};
using Messages = std::map<QString, Message>;  // by context and source

QString SourceFile(const QString& path) { return QString(TESSEL_SOURCE_ROOT "/") + path; }

Message ReadMessage(QXmlStreamReader& xml) {
  Message message;
  message.numerus = xml.attributes().value("numerus") == QLatin1String("yes");
  while (
      !(xml.readNext() == QXmlStreamReader::EndElement && xml.name() == QLatin1String("message"))) {
    if (!xml.isStartElement()) continue;
    const auto name = xml.name();
    if (name == QLatin1String("source")) message.source = xml.readElementText();
    if (name == QLatin1String("numerusform")) message.translations += xml.readElementText();
    if (name != QLatin1String("translation")) continue;
    message.finished = !xml.attributes().hasAttribute("type");
    if (!message.numerus) message.translations += xml.readElementText();
  }
  return message;
}

Messages MessagesIn(const QString& path) {
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
  Messages messages;
  QString context;
  for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
    if (xml.isStartElement() && xml.name() == QLatin1String("name"))
      context = xml.readElementText();
    if (!xml.isStartElement() || xml.name() != QLatin1String("message")) continue;
    const Message message = ReadMessage(xml);
    messages[context + ": " + message.source] = message;
  }
  return messages;
}

/// What the sources have now.
Messages Wanted(const TempDirectory& directory, const QString& file) {
  const QString path = QString::fromStdString(directory / file.toStdString());
  QProcess update;
  update.setWorkingDirectory(TESSEL_SOURCE_ROOT);
  update.setProcessEnvironment([] {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert("LUPDATE", TESSEL_LUPDATE);
    return environment;
  }());
  update.start("scripts/update-translations.sh", {path});
  EXPECT_TRUE(update.waitForFinished(kPatience));
  EXPECT_EQ(update.exitCode(), 0) << update.readAllStandardError().toStdString();
  return MessagesIn(path);
}

/// The places for what is filled in, sorted.
QStringList PlacesIn(const QString& text) {
  static const QRegularExpression place("%(\\d|n|L\\d|Ln)");
  QStringList places;
  for (auto found = place.globalMatch(text); found.hasNext();) places += found.next().captured();
  places.sort();
  return places;
}

int MarksIn(const QString& text) {
  static const QRegularExpression mark("&(?=[^&\\s])");
  return static_cast<int>(text.count(mark));
}

QString EndOf(const QString& text) {
  static const QRegularExpression end("(\\.\\.\\.|[.:?]|\\s)$");
  return end.match(text).captured();
}

QString BeginOf(const QString& text) { return text.left(text.startsWith(' ') ? 1 : 0); }

void ExpectWhole(const QString& key, const Message& message) {
  EXPECT_TRUE(message.finished) << key.toStdString();
  EXPECT_EQ(message.translations.size(), message.numerus ? 2 : 1) << key.toStdString();
  for (const QString& text : message.translations) {
    const std::string at = key.toStdString() + " -> " + text.toStdString();
    EXPECT_FALSE(text.isEmpty()) << at;
    EXPECT_EQ(PlacesIn(text), PlacesIn(message.source)) << at;
    EXPECT_EQ(MarksIn(text), MarksIn(message.source)) << at;
    EXPECT_EQ(EndOf(text).toStdString(), EndOf(message.source).toStdString()) << at;
    EXPECT_EQ(BeginOf(text), BeginOf(message.source)) << at;
    EXPECT_EQ(text.count('\n'), message.source.count('\n')) << at;
  }
}

void ExpectSameKeys(const Messages& has, const Messages& wanted) {
  for (const auto& [key, message] : wanted) {
    EXPECT_TRUE(has.contains(key)) << "missing: " << key.toStdString();
  }
  for (const auto& [key, message] : has) {
    EXPECT_TRUE(wanted.contains(key)) << "no more in the sources: " << key.toStdString();
  }
}

class TranslationFiles : public testing::Test {
 protected:
  TempDirectory directory_;
};

TEST_F(TranslationFiles, HaveEveryStringOfTheSourcesAndNoOther) {
  const Messages wanted = Wanted(directory_, "all_de.ts");
  EXPECT_GT(wanted.size(), 200U);
  ExpectSameKeys(MessagesIn(SourceFile("translations/zanth-manager_de.ts")), wanted);
}

TEST_F(TranslationFiles, AreFinishedAndLoseNoPlaceAndNoMark) {
  for (const auto& [key, message] : MessagesIn(SourceFile("translations/zanth-manager_de.ts"))) {
    ExpectWhole(key, message);
  }
}

TEST_F(TranslationFiles, HaveTheEnglishPlurals) {
  Messages plurals = Wanted(directory_, "all_en.ts");
  std::erase_if(plurals, [](const auto& entry) { return !entry.second.numerus; });
  const Messages english = MessagesIn(SourceFile("translations/zanth-manager_en.ts"));
  ExpectSameKeys(english, plurals);
  for (const auto& [key, message] : english) ExpectWhole(key, message);
}

TEST(TranslationChecks, SeeWhatIsLost) {
  EXPECT_NE(PlacesIn("%1 of %2"), PlacesIn("%1 von 2"));
  EXPECT_NE(PlacesIn("%n match(es)"), PlacesIn("Treffer"));
  EXPECT_EQ(MarksIn("&Open"), 1);
  EXPECT_EQ(MarksIn("Search && Replace"), 0);
  EXPECT_NE(EndOf("Open..."), EndOf("Öffnen"));
}

class InGerman : public testing::Test {
 protected:
  const Translations german_{QLocale("de_AT")};
};

TEST_F(InGerman, CountsAreRight) {
  EXPECT_EQ(QCoreApplication::translate("tessel::FindBar", "%n match(es)", nullptr, 1),
            "1 Treffer");
  EXPECT_EQ(QCoreApplication::translate("DocumentGuard", "%1 byte(s)", nullptr, 2), "%1 Bytes");
}

TEST(InEnglish, CountsAreRight) {
  const auto counted = [](int n) {
    return QCoreApplication::translate("tessel::FindBar", "%n match(es)", nullptr, n).toStdString();
  };
  EXPECT_EQ(counted(0), "0 matches");
  EXPECT_EQ(counted(1), "1 match");
  EXPECT_EQ(counted(2), "2 matches");
}

TEST(InALanguageWithoutATranslation, TheWindowIsEnglish) {
  const Translations none(QLocale("eo"));
  EXPECT_EQ(Translated("&File"), "&File");
  EXPECT_EQ(QCoreApplication::translate("tessel::FindBar", "%n match(es)", nullptr, 1), "1 match");
}

class GermanWindow : public InGerman {};

TEST_F(GermanWindow, IsGermanAndTheControlIsNot) {
  class Window : public HostTest {
   public:
    void TestBody() override {}
    HostRun& Here() { return Run(); }
  } window;
  QStringList titles;
  for (const QAction* title : window.Here().window->menuBar()->actions()) {
    titles += PlainCaption(title->text());
  }
  EXPECT_EQ(titles.join(' '),
            QString::fromUtf8("Datei Bearbeiten Suchen Ansicht Spiel Extras Fenster Hilfe"));
  EXPECT_EQ(window.Here().Controls().tbsCon.At(1).caption, "Player Items");
  EXPECT_EQ(window.Here().Controls().lblValue[0].Caption(), "Current Value:");
}

}  // namespace
}  // namespace tessel::test
