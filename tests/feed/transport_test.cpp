#include "feed/transport.h"

#include "forms/main_form.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class TransportTest : public Station {};

TEST_F(TransportTest, ASecondCallOnABusyControlReturnsAtOnceAndLeavesItsOutput) {
  Doubles.Reply("first", "reply");
  std::string second = "kept";
  Doubles.during_fetch = [&](const std::string& url) {
    if (url == "first") GetData("second", second);
  };
  std::string first;
  GetData("first", first);
  EXPECT_EQ(first, "reply");
  EXPECT_EQ(second, "kept");
  EXPECT_EQ(Doubles.requests, std::vector<std::string>{"first"}) << "nothing is queued";
}

TEST_F(TransportTest, TheThreeControlsAreIndependent) {
  Doubles.Reply("", "bytes");
  std::vector<std::string> seen;
  Doubles.during_fetch = [&](const std::string& url) {
    seen.push_back(url);
    if (url == "text") GetImage("image", "C:\\program files\\skyloft\\temp\\a.gif");
    if (url == "image") GetRadar("radar", "C:\\program files\\skyloft\\temp\\b.gif");
  };
  std::string text;
  GetData("text", text);
  EXPECT_EQ(seen, (std::vector<std::string>{"text", "image", "radar"}));
  EXPECT_TRUE(Doubles.files.contains("c:\\program files\\skyloft\\temp\\b.gif"));
}

TEST_F(TransportTest, AFailedFetchLeavesTextAndFile) {
  Doubles.files["c:\\program files\\skyloft\\temp\\a.gif"] = "old";
  std::string text = "kept";
  GetData("nowhere", text);
  GetImage("nowhere", "C:\\program files\\skyloft\\temp\\a.gif");
  EXPECT_EQ(text, "kept");
  EXPECT_EQ(Doubles.files["c:\\program files\\skyloft\\temp\\a.gif"], "old");
  EXPECT_TRUE(MainForm.Http.Idle());
}

TEST_F(TransportTest, ItDialsUnattendedOnlyWithAutoConnect) {
  std::string text;
  Transport.AutoConnect = "1";
  GetData("a", text);
  Transport.AutoConnect = "0";
  GetData("b", text);
  EXPECT_EQ(Doubles.dials, (std::vector<int>{2, 1}));
}

TEST_F(TransportTest, GetXmlReadsAutoConnectFromTheSettingsKeyAndNotFromTheOptions) {
  Doubles.Store(kOptionsKey, "AutoConnect", "0");
  Transport.AutoConnect = "0";
  std::string text;
  GetXML("hosts", text);
  EXPECT_EQ(Transport.AutoConnect, "1") << "nothing writes that value, so the default comes back";
  EXPECT_EQ(Doubles.dials, std::vector<int>{2});
}

TEST_F(TransportTest, ProgressOfAPictureIsShownAboveAHundredBytes) {
  ConnectTransport();
  MainForm.ProductTitle.Caption = "before";
  MainForm.HttpData.Progress(50, 100);
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "before")
      << "a reply of 100 bytes or less shows no percentage";
  MainForm.HttpData.Progress(100, 101);
  EXPECT_EQ(MainForm.ProductTitle.Caption.Get(), "downloading image ..... 99%") << "cut off, not rounded";
}

TEST_F(TransportTest, AQueryIsSkippedWhileHttpIsBusy) {
  MainForm.Http.State = 1;
  bool read = false;
  QueryServer("url", [&](const XmlDocument&) { read = true; });
  EXPECT_FALSE(read);
  EXPECT_TRUE(Doubles.requests.empty());
}

TEST_F(TransportTest, TheTimeOutsAreAsTold) {
  EXPECT_EQ(MainForm.Http.Timeout, 60000);
  EXPECT_EQ(MainForm.HttpData.Timeout, 60000);
  EXPECT_EQ(MainForm.HttpRadar.Timeout, 60000);
}

}  // namespace
}  // namespace skyloft
