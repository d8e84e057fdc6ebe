// Warnings of the whole program: bulletins of the feed and the user's own thresholds, on the bar, by its
// buttons and by mail through a real mail server.
#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "feedserver/running_server.h"
#include "platform/smtp_sink.h"
#include "program/program.h"

namespace skyloft::program {
namespace {

// Five towns; the first, of zip code 66044, wants all bulletins delivered in every way.
class AlertsTest : public testing::Test {
 protected:
  void SetUp(const SmtpSink& sink) {
    SetUpTowns(folder);
    for (const char* row : {"TornadoWarning", "TornadoWatch", "FlashFloodWarning", "NWSAlertMessage",
                            "NWSAlertAudio", "NWSAlertEmail"}) {
      folder.SetSetting("Location0/" + QString(row), "1");
    }
    folder.SetSetting("Options/EmailAddress", "me@home.example");
    folder.SetSetting("Options/ShowTicker", "0");
    folder.AddSetting("Options/SmtpRelay", QString::fromStdString(sink.Address()));
  }
  Ending Run(const QByteArray& bulletins, const std::string& script) const {
    folder.Write("bulletins", bulletins);
    return RunInRoot(folder, {"--bulletins", folder.Path("bulletins")}, QByteArray::fromStdString(script));
  }
  // A line that saves a snapshot under a name.
  std::string Look(const char* name) const { return "snapshot " + folder.Path(name).toStdString() + "\n"; }
  // What a snapshot shows: whether the bar is up, and the three buttons' pictures.
  std::string Shown(const char* name) const {
    const Snapshot snapshot(folder.Path(name));
    std::string text = snapshot.Flag("TickerForm", "visible") ? "bar:" : "no bar:";
    for (const char* button : {"TornadoButton", "ThunderstormButton", "FloodButton"}) {
      const std::string path = snapshot.Text(QString("MainForm.") + button, "picture");
      text += " " + path.substr(path.rfind('\\') + 1);
      if (!snapshot.Flag(QString("MainForm.") + button, "enabled")) text += " (off)";
    }
    return text;
  }
  std::string Bar(const char* name) const { return Snapshot(folder.Path(name)).Page("TickerForm.Ticker"); }

  Folder folder;
};

constexpr const char* kQuiet = "no bar: tornadod.gif (off) tstormd.gif (off) floodd.gif (off)";
constexpr const char* kTornado = "bar: tornado.gif tstormd.gif (off) floodd.gif (off)";
constexpr const char* kTornadoWaits = "no bar: tornados.gif tstormd.gif (off) floodd.gif (off)";

// The program starts at 20:05 GMT; a bulletin check follows every five minutes, ten ticks.
TEST_F(AlertsTest, AnEveningOfBulletins) {
  const SmtpSink sink;
  SetUp(sink);
  const QByteArray bulletins =
      "66044 | TOR | 2003-03-07T20:20:00 | 2003-03-07T20:38:00 | Take cover now. \n"
      "66044 | WTO | 2003-03-07T20:10:00 | 2003-03-07T20:48:00 | x\n"
      "80202 | TOR | 2003-03-07T20:05:00 | 2003-03-07T23:00:00 | nobody asked\n";
  const std::string tick = "tick UpdateTimer ";
  const Ending ending = Run(
      bulletins, Look("start") + tick + "9\n" + Look("before") + tick + "1\n" + Look("watch") + tick + "3\n" +
                     Look("still") + tick + "1\n" + Look("over") + "click MainForm.TornadoButton\n" +
                     Look("again") + "click MainForm.TornadoButton\n" + Look("stopped") + tick + "16\n" +
                     Look("warning") + tick + "8\n" + Look("waits") + tick + "32\n" + Look("watch_alone") +
                     tick + "20\n" + Look("ended") + tick + "10\n" + Look("quiet") + "quit\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(Shown("start"), kQuiet);
  EXPECT_EQ(Shown("before"), kQuiet);
  EXPECT_EQ(Shown("watch"), kTornado);
  EXPECT_EQ(Shown("still"), kTornado) << "90 of 120 seconds";
  EXPECT_EQ(Shown("over"), kTornadoWaits);
  EXPECT_EQ(Shown("again"), kTornado);
  EXPECT_EQ(Shown("stopped"), kTornadoWaits);
  EXPECT_EQ(Shown("warning"), kTornado);
  EXPECT_EQ(Shown("waits"), kTornadoWaits) << "240 seconds later";
  EXPECT_EQ(Shown("watch_alone"), kTornado) << "the warning has ended, so the watch is told again";
  EXPECT_EQ(Shown("ended"), kTornadoWaits) << "until the next check";
  EXPECT_EQ(Shown("quiet"), kQuiet);

  const std::string watch =
      "THE NATIONAL WEATHER SERVICE HAS ISSUED A TORNADO WATCH WHICH INCLUDES DOUGLAS COUNTY, KANSAS, "
      "EFFECTIVE UNTIL 2:48 PM FRIDAY. A TORNADO WATCH MEANS THAT CONDITIONS ARE FAVORABLE";
  EXPECT_NE(Bar("watch").find("value='" + watch), std::string::npos) << Bar("watch");
  EXPECT_NE(Bar("watch").find("warning.wav"), std::string::npos);
  EXPECT_NE(Bar("again").find("EFFECTIVE UNTIL 2:48 PM Friday."), std::string::npos) << "as it stands";
  EXPECT_EQ(Bar("again").find("warning.wav"), std::string::npos) << "a replay is silent";
  EXPECT_NE(Bar("warning").find("value='SIMULATED. TAKE COVER NOW.     THE NATIONAL"), std::string::npos);
  EXPECT_EQ(sink.Messages().size(), 3u) << "the watch, both, the watch alone";
  for (const std::string& mail : sink.Messages()) {
    EXPECT_NE(mail.find("Subject: SKYLOFT ALERT"), std::string::npos);
    EXPECT_NE(mail.find("me@home.example"), std::string::npos);
  }
  EXPECT_NE(sink.Messages()[1].find("SIMULATED. Take cover now."), std::string::npos) << sink.Messages()[1];
}

TEST_F(AlertsTest, AFindingOfTheUsersOwnIsToldUnderABulletinByItsButtonAndMail) {
  const SmtpSink sink;
  SetUp(sink);
  folder.SetSetting("Location0/SKLTPersonalAlert", "1");
  folder.SetSetting("Location0/MaximumTemperature", "1");
  folder.SetSetting("Location0/MaximumTemperatureThreshold", "-80 ");
  folder.SetSetting("Location0/SKLTAlertMessage", "1");
  folder.SetSetting("Location0/SKLTAlertEmail", "1");
  const Ending ending = Run("66044 | FFW | -5 | +60 | Water!\n",
                            Look("start") + "click MainForm.PersonalAlertButton\n" + Look("same") +
                                "click MainForm.FloodButton\nclick MainForm.PersonalAlertButton\n" +
                                Look("personal") + "tick UpdateTimer\n" + Look("over") + "quit\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(Shown("start"), "bar: tornadod.gif (off) tstormd.gif (off) flood.gif");
  for (const char* look : {"start", "same"}) {
    EXPECT_NE(Bar(look).find("SIMULATED. WATER!"), std::string::npos);
    EXPECT_NE(
        Snapshot(folder.Path(look)).Text("MainForm.PersonalAlertButton", "picture").find("personals.gif"),
        std::string::npos);
  }
  EXPECT_NE(Bar("personal").find("value='Skyloft Alert: ..... Lawrence, KS Temperature: "),
            std::string::npos);
  EXPECT_EQ(Shown("over"), "no bar: tornadod.gif (off) tstormd.gif (off) floods.gif");
  EXPECT_EQ(sink.Messages().size(), 2u);
}

TEST_F(AlertsTest, ABulletinStillInForceIsToldAndMailedAgainByTheNextStart) {
  const SmtpSink sink;
  SetUp(sink);
  for (const size_t mails : {1u, 2u}) {
    const Ending ending = Run("66044 | FFW | -5 | +60 | Water!\n", Look("start") + "menu ExitSkyloft\n");
    ASSERT_EQ(ending.code, 0) << ending.errors;
    EXPECT_EQ(Shown("start"), "bar: tornadod.gif (off) tstormd.gif (off) flood.gif");
    EXPECT_EQ(sink.Messages().size(), mails);
  }
}

// The bulletin that starts with the program finds a mail server in trouble.
class MailFault : public AlertsTest, public testing::WithParamInterface<const char*> {};

TEST_P(MailFault, StopsNeitherTheCycleNorTheWindowAndNothingIsSaidTwice) {
  const SmtpSink sink(GetParam());
  SetUp(sink);
  if (std::string(GetParam()).empty())
    folder.SetSetting("Options/SmtpRelay", "smtp://127.0.0.1:1");  // nobody
  const Ending ending =
      Run("66044 | TOR | +5 | +60 | Take cover!\n",
          "tick UpdateTimer 10\n" + Look("shown") + "tick UpdateTimer 30\n" + Look("later") + "quit\n");
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(Shown("shown"), kTornado);
  EXPECT_EQ(Shown("later"), kTornadoWaits);
  EXPECT_TRUE(sink.Messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, MailFault, testing::Values("", "refuse-recipient"));

TEST_F(AlertsTest, WhileAMailHangsTheWindowAnswersAndTheProgramCanEnd) {
  const SmtpSink sink("hang");
  SetUp(sink);
  QElapsedTimer clock;
  clock.start();
  const Ending ending = Run("66044 | TOR | +5 | +60 | Take cover!\n",
                            "async tick UpdateTimer 10\nwait 500\nexpect MainForm visible true\nclick "
                            "MainForm.ExitButton\nexpect MainForm visible false\n" +
                                Look("shown") + "menu ExitSkyloft\n");
  EXPECT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(Shown("shown"), kTornado);
  EXPECT_LT(clock.elapsed(), 20000) << "a mail may take 30 seconds";
}

TEST_F(AlertsTest, HostileBulletinsOfEveryKindLeaveTheProgramRunning) {
  const SmtpSink sink;
  SetUp(sink);
  const QByteArray when = " | +5 | +60 | ";
  QByteArray many;
  for (int i = 0; i < 10000; ++i) many += "66044 | TOR" + when + "Again. \n";
  const QByteArray hostile[] = {
      many,
      "66044 | TOR" + when + QByteArray(100000, 'x') + "\n",
      "66044 | TOR" + when + "</applet><img src='http://127.0.0.1:1/x'>'>\"&amp;&#0;\\r\\n<script>\n",
      "66044 | ZZZ" + when + "unknown\n66044 | TOR" + when + "known\n",
  };
  for (const QByteArray& bulletins : hostile) {
    const Ending ending = Run(bulletins, "tick UpdateTimer 10\nuntil idle 20000\n" + Look("shown") +
                                             "click MainForm.TornadoButton\n" + Look("stopped") + "quit\n");
    ASSERT_EQ(ending.code, 0) << ending.errors;
    EXPECT_EQ(Shown("shown"), kTornado);
    EXPECT_EQ(Shown("stopped"), kTornadoWaits);
  }
}

// What a reply of the feed in trouble leaves: no bulletins, and a program that goes on.
class BulletinFault : public AlertsTest, public testing::WithParamInterface<const char*> {};

TEST_P(BulletinFault, ReadsAsNoBulletins) {
  const SmtpSink sink;
  SetUp(sink);
  folder.Write("bulletins", "66044 | TOR | -5 | +60 | Take cover!\n");
  const feed::RunningServer server({"--port", "0", "--bulletins", folder.Path("bulletins").toStdString(),
                                    "--fault", std::string("/bulletins.asp=") + GetParam()});
  const Ending ending =
      RunInRoot(folder, {"--hosts", "127.0.0.1:" + QString::number(server.Port())},
                QByteArray::fromStdString("tick UpdateTimer 10\n" + Look("shown") + "quit\n"));
  ASSERT_EQ(ending.code, 0) << ending.errors;
  EXPECT_EQ(Shown("shown"), kQuiet);
  EXPECT_TRUE(sink.Messages().empty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, BulletinFault,
                         testing::Values("500", "empty", "cut", "garbage", "refuse", "huge"));

}  // namespace
}  // namespace skyloft::program
