// What an installed program brings for the desktop and the shell.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "program/program.h"

namespace skyloft::program {
namespace {

QString Packaging(const QString& name) { return QStringLiteral(SKYLOFT_PACKAGING "/") + name; }
QString TextOf(const QString& name) { return QString::fromUtf8(ReadBytes(Packaging(name))); }

struct Executable {
  const char* name;
  const char* file;
};
const Executable kExecutables[] = {{"skyloft", SKYLOFT_PROGRAM}, {"skyloft-feed", SKYLOFT_FEED}};

QString OutputOf(const QString& program, const QStringList& words) {
  QProcess process;
  process.start(program, words);
  EXPECT_TRUE(process.waitForFinished());
  EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

QStringList OptionsOf(const Executable& executable) {
  QStringList options;
  const QRegularExpression option(QStringLiteral("^  (--[a-z-]+)"), QRegularExpression::MultilineOption);
  const QString help = OutputOf(executable.file, {"--help"});
  for (auto found = option.globalMatch(help); found.hasNext();) options << found.next().captured(1);
  EXPECT_GT(options.size(), 5);
  return options;
}

TEST(ManPage, TellsTheOptionsOfHelpInTheirOrder) {
  for (const Executable& executable : kExecutables) {
    QStringList told;
    const QRegularExpression option(QStringLiteral("^\\.TP\\n\\.BI? (\\S+)"),
                                    QRegularExpression::MultilineOption);
    const QString page = TextOf(QString(executable.name) + ".1");
    for (auto found = option.globalMatch(page.section(".SH OPTIONS", 1).section(".SH ", 0, 0));
         found.hasNext();) {
      told << found.next().captured(1).remove('\\');
    }
    QStringList options = OptionsOf(executable);
    told.sort();
    options.sort();
    EXPECT_EQ(told.join('\n').toStdString(), options.join('\n').toStdString());
  }
}

// What bash offers behind `words`, the last of which is being typed.
QStringList Completed(const QString& words) {
  const QString script = QStringLiteral(
      "PATH=%1:$PATH; source '%2'; COMP_WORDS=(%3); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
      "_skyloft \"${COMP_WORDS[0]}\"; printf '%s\\n' \"${COMPREPLY[@]}\"");
  return OutputOf("bash", {"--norc", "-c",
                           script.arg(QString(SKYLOFT_PROGRAM).section('/', 0, -2),
                                      Packaging("skyloft.bash-completion"), words)})
      .split('\n', Qt::SkipEmptyParts);
}

TEST(Completion, OffersEveryOptionOfBothPrograms) {
  for (const Executable& executable : kExecutables) {
    EXPECT_EQ(Completed(QString(executable.name) + " --"), OptionsOf(executable)) << executable.name;
  }
}

TEST(Completion, OffersWhatAnOptionWants) {
  EXPECT_EQ(Completed("skyloft --autostart o"), QStringList({"on", "off"}));
  EXPECT_EQ(Completed("skyloft --zone \"\""), QStringList());
  const Folder folder;
  QDir().mkpath(folder.Path("towns"));
  folder.Write("script", "quit\n");
  folder.Write("town", "");
  EXPECT_EQ(Completed("skyloft --root " + folder.Path("town")), QStringList({folder.Path("towns")}));
  EXPECT_EQ(Completed("skyloft --script " + folder.Path("s")), QStringList({folder.Path("script")}));
}

TEST(Version, IsTheProgramsOwn) {
  EXPECT_EQ(OutputOf(SKYLOFT_PROGRAM, {"--version"}).toStdString(), "skyloft 1.20.00\n");
  EXPECT_EQ(OutputOf(SKYLOFT_FEED, {"--version"}).toStdString(), "skyloft-feed 1.20.00\n");
}

// The keys of a desktop entry's one group.
QMap<QString, QString> EntryOf(const QByteArray& bytes) {
  QMap<QString, QString> entry;
  for (const QString& line : QString::fromUtf8(bytes).split('\n')) {
    if (line.contains('=')) entry[line.section('=', 0, 0)] = line.section('=', 1);
  }
  return entry;
}

TEST(DesktopEntry, StartsTheProgramUnderItsNameAndIcon) {
  const auto entry = EntryOf(ReadBytes(Packaging("example.skyloft.Skyloft.desktop")));
  EXPECT_EQ(entry["Type"], "Application");
  EXPECT_EQ(entry["Exec"], "skyloft");
  EXPECT_EQ(entry["Icon"], "example.skyloft.Skyloft");
  EXPECT_EQ(entry["StartupWMClass"], "skyloft");
}

TEST(AppStream, DescribesTheSameDesktopEntryAndRelease) {
  QXmlStreamReader reader(ReadBytes(Packaging("example.skyloft.Skyloft.metainfo.xml")));
  QMap<QString, QString> texts;
  QString release;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"release") release = reader.attributes().value("version").toString();
    if (reader.name() == u"id" || reader.name() == u"launchable") {
      const QString name = reader.name().toString();
      texts[name] = reader.readElementText();
    }
  }
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_EQ(texts["launchable"], texts["id"] + ".desktop");
  EXPECT_EQ(release, "1.20.0");
}

TEST(Autostart, WritesAndRemovesTheUsersEntryOfThisProgram) {
  const Folder folder;
  const QString home = folder.Path("settings of \"$me\"");
  const QStringList environment = {"XDG_CONFIG_HOME=" + home};
  const QString file = home + "/autostart/example.skyloft.Skyloft.desktop";
  EXPECT_EQ(ProgramRun(folder, {"--autostart", "off"}, environment).Wait().code, 0) << "there was none";
  EXPECT_EQ(ProgramRun(folder, {"--autostart", "on"}, environment).Wait().code, 0);
  EXPECT_EQ(EntryOf(ReadBytes(file))["Exec"], QStringLiteral("\"%1\"").arg(SKYLOFT_PROGRAM));
  EXPECT_EQ(ProgramRun(folder, {"--autostart", "on"}, environment).Wait().code, 0) << "again";
  EXPECT_EQ(ProgramRun(folder, {"--autostart", "off"}, environment).Wait().code, 0);
  EXPECT_FALSE(QFile::exists(file));
  folder.Write("no folder", "");
  EXPECT_EQ(
      ProgramRun(folder, {"--autostart", "on"}, {"XDG_CONFIG_HOME=" + folder.Path("no folder")}).Wait().code,
      2);
}

}  // namespace
}  // namespace skyloft::program
