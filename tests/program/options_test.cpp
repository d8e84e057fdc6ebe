// The command line.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

#include "program/program.h"

namespace skyloft::program {
namespace {

// The options that --help tells, each with its argument as in "--root DIR". Two blanks end them.
QStringList OptionsOfHelp(const Ending& help) {
  QStringList options;
  for (const QString& line : QString::fromStdString(help.output).split('\n')) {
    if (line.startsWith("  --")) options << line.trimmed().section("  ", 0, 0);
  }
  return options;
}

// The options in the first cells of the README's table: | `--root DIR` | ... |
QStringList OptionsOfReadme() {
  QStringList options;
  for (const QString& line : QString::fromUtf8(ReadBytes(SKYLOFT_README)).split('\n')) {
    if (line.startsWith("| `--")) options << line.section('`', 1, 1).remove('\\');
  }
  return options;
}

TEST(Help, TellsTheOptionsOfTheReadme) {
  const Folder folder;
  const Ending help = ProgramRun(folder, {"--help"}).Wait();
  EXPECT_EQ(help.code, 0);
  EXPECT_EQ(help.errors, "");
  const QStringList options = OptionsOfHelp(help);
  EXPECT_TRUE(options.contains("--root DIR")) << help.output;
  EXPECT_EQ(options.join('\n').toStdString(), OptionsOfReadme().join('\n').toStdString());
}

struct BadOptions {
  const char* name;
  QStringList options;
  const char* named;  // occurs in the message
};

void PrintTo(const BadOptions& bad, std::ostream* out) { *out << bad.options.join(' ').toStdString(); }

class Refused : public testing::TestWithParam<BadOptions> {};

TEST_P(Refused, WithCode2AndAMessageThatNamesIt) {
  const Folder folder;
  const Ending ending = ProgramRun(folder, GetParam().options).Wait();
  EXPECT_EQ(ending.code, 2);
  EXPECT_TRUE(ending.errors.starts_with("skyloft: ")) << ending.errors;
  EXPECT_NE(ending.errors.find(GetParam().named), std::string::npos) << ending.errors;
  // Nothing was set up for a run that does not come.
  EXPECT_TRUE(folder.Entries("home").isEmpty()) << folder.Entries("home").join('\n').toStdString();
  EXPECT_TRUE(folder.Entries("tmp").isEmpty()) << folder.Entries("tmp").join('\n').toStdString();
}

const BadOptions kBadOptions[] = {
    {"Unknown", {"--what"}, "--what"},
    {"Word", {"what"}, "what"},
    {"MissingValue", {"--root"}, "--root"},
    {"MissingFile", {"--bulletins"}, "--bulletins"},
    {"EmptyValue", {"--zone="}, "--zone"},
    {"ValueOfASwitch", {"--demo=1"}, "--demo"},
    {"Autostart", {"--autostart", "yes"}, "--autostart"},
    {"NowIsNoDate", {"--now", "yesterday"}, "--now"},
    {"NowIsNoHour", {"--now", "2003-03-07T24:05:00"}, "--now"},
    {"Zone", {"--zone", "Mars/Olympus"}, "Mars/Olympus"},
    {"DotsAreNone", {"--dpi", "0"}, "--dpi"},
    {"DotsAreNegative", {"--dpi", "-96"}, "--dpi"},
    {"DotsAreNoNumber", {"--dpi", "96x"}, "--dpi"},
    {"DotsAreTooMany", {"--dpi", "99999999999"}, "--dpi"},
    {"NoScript", {"--demo", "--script", "nowhere.script"}, "nowhere.script"},
    {"ScriptIsAFolder", {"--demo", "--script", "."}, "."},
};

INSTANTIATE_TEST_SUITE_P(Options, Refused, testing::ValuesIn(kBadOptions),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(Snapshots, FolderThatCannotBeMadeIsAnError) {
  const Folder folder;
  folder.Write("file", "");
  const Ending ending = RunInRoot(folder, {"--demo", "--snapshot", folder.Path("file/s")});
  EXPECT_EQ(ending.code, 2);
  EXPECT_NE(ending.errors.find("cannot save to"), std::string::npos) << ending.errors;
}

TEST(Bulletins, FileIsHandedToTheBuiltInServer) {
  const Folder folder;
  folder.Write("bulletins", "66044 | TOR\n");
  const Ending ending =
      RunInRoot(folder, {"--demo", "--bulletins", folder.Path("bulletins"), "--snapshot", folder.Path("s")});
  EXPECT_EQ(ending.code, 0);
  EXPECT_NE(ending.errors.find("bulletins: line 1 is no bulletin"), std::string::npos) << ending.errors;
}

TEST(Values, MayBeJoinedToTheirOption) {
  const Folder folder;
  const Ending ending =
      ProgramRun(folder, {"--root=" + folder.Root(), "--demo", "--snapshot=" + folder.Path("s")}).Wait();
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_TRUE(Snapshot(folder.Path("s")).Saved());
  EXPECT_TRUE(QDir(folder.Root()).exists("registry.ini"));
}

}  // namespace
}  // namespace skyloft::program
