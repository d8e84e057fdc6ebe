#include "feed/hosts.h"

#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/ticker_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class Hosts : public Station {
 protected:
  static std::string Table(const std::string& version, const std::string& more = "") {
    return Reply(Element("version", version) + more);
  }
  static constexpr const char* kUnreachable =
      "ERROR: SKYLOFT SERVER UNREACHABLE. Check your internet connection and/or firewall.";
  static constexpr const char* kUpdate = "Skyloft updates are available! Click OK to continue.";
  static std::vector<std::string> BoxTexts() {
    std::vector<std::string> texts;
    for (const auto& box : Doubles.boxes) texts.push_back(box.second);
    return texts;
  }
};

TEST_F(Hosts, TheTableIsReadFromTheFixedAddressWhateverTheStoredOne) {
  HostAddress.Hosts = "stored.example/other.xml";
  Doubles.Reply("hosts.xml", Table("1.20.00"));
  CheckHosts(0);
  EXPECT_EQ(Doubles.requests, std::vector<std::string>{"www.skyloft.example/skyloft/config/hosts.xml"});
  EXPECT_EQ(HostAddress.Hosts, "www.skyloft.example/skyloft/config/hosts.xml");
}

TEST_F(Hosts, EveryTagHasItsFieldInAnyOrderAndPlace) {
  std::string elements;
  for (const char* tag :
       {"shareserver", "supportserver", "helpserver", "updateserver", "imageserver", "forecastserver",
        "messageinterval", "messageserver", "productserver", "fileserver"}) {
    elements += "<deep>" + Element(tag, std::string("the ") + tag) + "</deep>";
  }
  Doubles.Reply("hosts.xml",
                Table("1.20.00", elements + "<unknown>x</unknown><fileserver>second</fileserver>"));
  CheckHosts(0);
  EXPECT_EQ(HostTable.fileserver, "the fileserver");
  EXPECT_EQ(HostTable.productserver, "the productserver");
  EXPECT_EQ(HostTable.messageserver, "the messageserver");
  EXPECT_EQ(HostTable.messageinterval, "the messageinterval");
  EXPECT_EQ(HostTable.forecastserver, "the forecastserver");
  EXPECT_EQ(HostTable.imageserver, "the imageserver");
  EXPECT_EQ(HostTable.updateserver, "the updateserver");
  EXPECT_EQ(HostTable.helpserver, "the helpserver");
  EXPECT_EQ(HostTable.supportserver, "the supportserver");
  EXPECT_EQ(HostTable.shareserver, "the shareserver");
}

TEST_F(Hosts, TagsAreCaseSensitive) {
  Doubles.Reply("hosts.xml", Table("1.20.00", "<FileServer>x</FileServer>"));
  CheckHosts(0);
  EXPECT_EQ(HostTable.fileserver, "");
}

TEST_F(Hosts, OurOwnVersionShowsNoBox) {
  Doubles.Reply("hosts.xml", Table("1.20.00"));
  EXPECT_FALSE(EndsProcess([] { CheckHosts(0); }));
  EXPECT_TRUE(Doubles.boxes.empty());
}

TEST_F(Hosts, AHigherAndALowerVersionAreBothUpdates) {
  for (const char* version : {"1.20.01", "1.19.99", "1.20.0", " 1.20.00"}) {
    Doubles.replies.clear();
    Doubles.boxes.clear();
    Doubles.Reply("hosts.xml", Table(version));
    EXPECT_TRUE(EndsProcess([] { CheckHosts(1); })) << version;
    EXPECT_EQ(BoxTexts(), std::vector<std::string>{kUpdate}) << version;
  }
}

TEST_F(Hosts, AStartWithoutAnAnswerShowsTheMessageAndEnds) {
  for (const char* reply :
       {"", "not XML", "<r/>", "<r><version></version></r>", "<r><version>1.20.00</version>"}) {
    Doubles.replies.clear();
    Doubles.boxes.clear();
    if (*reply) Doubles.Reply("hosts.xml", reply);
    EXPECT_TRUE(EndsProcess([] { CheckHosts(0); })) << reply;
    EXPECT_EQ(BoxTexts(), std::vector<std::string>{kUnreachable}) << reply;
    EXPECT_EQ(Doubles.boxes[0].first, BoxKind::Error);
  }
}

TEST_F(Hosts, ALaterCheckWithoutAnAnswerShowsNothingAndKeepsAllServers) {
  HostTable.imageserver = "kept";
  EXPECT_FALSE(EndsProcess([] { CheckHosts(1); }));
  EXPECT_TRUE(Doubles.boxes.empty());
  EXPECT_EQ(HostTable.imageserver, "kept");
}

TEST_F(Hosts, AnEmptyForecastserverWithAVersionPassesTheCheck) {
  HostTable.forecastserver = "old";
  Doubles.Reply("hosts.xml", Table("1.20.00", "<forecastserver></forecastserver>"));
  EXPECT_FALSE(EndsProcess([] { CheckHosts(0); }));
  EXPECT_EQ(HostTable.forecastserver, "");
}

TEST_F(Hosts, ABusyControlLeavesTheFieldsAndCountsAsNoAnswer) {
  MainForm.Http.State = 1;
  HostTable.imageserver = "kept";
  Doubles.Reply("hosts.xml", Table("1.20.00"));
  EXPECT_FALSE(EndsProcess([] { CheckHosts(1); }));
  EXPECT_TRUE(Doubles.requests.empty());
  EXPECT_TRUE(EndsProcess([] { CheckHosts(0); }));
}

TEST_F(Hosts, CancelOnTheUpdateBoxEndsWithoutAWindowOrADownload) {
  Doubles.Reply("hosts.xml", Table("2.0", Element("updateserver", "updates.skyloft.example/skltupdate.exe")));
  Doubles.answers = {BoxAnswer::Cancel};
  Doubles.files["c:\\program files\\skyloft\\sklt.dat"] = "data";
  EXPECT_TRUE(EndsProcess([] { CheckHosts(0); }));
  EXPECT_EQ(Doubles.requests.size(), 1u);
  EXPECT_FALSE(InitializingForm.Visible);
  EXPECT_FALSE(MainForm.Visible);
  EXPECT_TRUE(Doubles.files.contains("c:\\program files\\skyloft\\sklt.dat"));
}

TEST_F(Hosts, AnAcceptedUpdateIsStartedAndTheCacheGoesAlsoWhenTheDownloadFailed) {
  for (const bool downloads : {true, false}) {
    Doubles = {};
    Doubles.Reply("hosts.xml",
                  Table("2.0", Element("updateserver", "updates.skyloft.example/skltupdate.exe")));
    if (downloads) Doubles.Reply("skltupdate.exe", std::string(200, 'x'));
    Doubles.answers = {BoxAnswer::Ok};
    Doubles.files["c:\\program files\\skyloft\\sklt.dat"] = "data";
    MainForm.Visible = TickerForm.Visible = true;
    EXPECT_TRUE(EndsProcess([] { CheckHosts(1); }));
    EXPECT_FALSE(MainForm.Visible);
    EXPECT_FALSE(TickerForm.Visible);
    EXPECT_TRUE(InitializingForm.Visible);
    EXPECT_EQ(InitializingForm.SoftwareVersion.Caption.Get(), "2.0");
    EXPECT_FALSE(Doubles.files.contains("c:\\program files\\skyloft\\sklt.dat"));
    EXPECT_EQ(Doubles.started_updates,
              std::vector<std::string>{"C:\\program files\\skyloft\\temp\\skltupdate.exe"});
    EXPECT_EQ(Doubles.files.contains("c:\\program files\\skyloft\\temp\\skltupdate.exe"), downloads);
  }
}

TEST_F(Hosts, TheDownloadsProgressIsShownAboveAHundredBytesAndOnlyOnAVisibleSplash) {
  InitializingForm.UpdateHttp.Progress(500, 1000);
  EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), "");
  InitializingForm.Visible = true;
  InitializingForm.UpdateHttp.Progress(50, 100);
  EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), "");
  InitializingForm.UpdateHttp.Progress(500, 1000);
  EXPECT_EQ(InitializingForm.SoftwareStatus.Caption.Get(), "downloading update 500 bytes");
  EXPECT_EQ(InitializingForm.ProgressBar.Max, 1000);
  EXPECT_EQ(InitializingForm.ProgressBar.Value, 500);
  EXPECT_EQ(InitializingForm.UpdateHttp.Timeout, 30000);
}

}  // namespace
}  // namespace skyloft
