#include "pages/historical.h"

#include "feed/addresses.h"
#include "forms/main_form.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

const char* const kPath = "c:\\station\\temp\\historical.htm";  // as the double keeps names
const char* const kIcons = "C:\\station\\icons\\";

// An hour of a reply; `lacking` is left out.
std::string Hour(const std::string& time, const std::string& degrees, const std::string& lacking = "") {
  const std::pair<const char*, std::string> cells[] = {
      {"Lt", time},    {"Ic", "rain.gif"}, {"Desc", "light rain"},
      {"Tf", "41"},    {"Df", "38"},       {"Rh", "90"},
      {"Wd", degrees}, {"Ws", "7"},        {"Vi", "6"},
  };
  std::string elements;
  for (const auto& [tag, text] : cells) {
    if (tag != lacking) elements += Element(tag, text);
  }
  return elements;
}

std::string Lines(std::initializer_list<std::string> lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

// The page by its lines, up to and with the heading row.
std::string ExpectedHead() {
  const std::string black = " bgcolor='#000000'><font color='#FFFFFF'>";
  const std::string cell = "<td valign='middle' align='center' width='";
  return Lines({
      "<html>",
      "<head>",
      "<title>Location</title>",
      "<style type='text/css'>",
      "TD {",
      "font-family: Tahoma;",
      "font-size: 11px;",
      "color: #FFFFFF;",
      "}",
      "</style>",
      std::string("<link rel='stylesheet' type='text/css' href='") + kStyleSheet + "'>",
      "</head>",
      "<body bgcolor='#000000'>",
      "<table border='1' cellpadding='0' cellspacing='0' width='512'>",
      "</table>",
      "<div align='center'>",
      "<table border='1' bgcolor='#003399' width='512' cellpadding='0' cellspacing='0'>",
      "<tr>",
      cell + "80'" + black + "Time</font></td>",
      cell + "40'" + black + "Sky</font></td>",
      cell + "190'" + black + "Weather</font></td>",
      cell + "55'" + black + "Temp<br>(F)</font></td>",
      cell + "55'" + black + "Dewp<br>(F)</font></td>",
      cell + "55'" + black + "Rhum<br>(%)</font></td>",
      cell + "60'" + black + "Wind<br>(mph)</font></td>",
      cell + "46'" + black + "Vis<br>(mi)</font></td>",
      "</tr>",
  });
}

std::string ExpectedRow(const std::string& time, const std::string& wind) {
  const std::string cell = "<td valign='middle' align='center' width='";
  const std::string white = "'><font color='#FFFFFF'>";
  const std::string end = "</font></td>";
  return Lines({
      "<tr>",
      cell + "80'><font color='#FFFF00'>" + time + end,
      cell + "40'><img border='0' src=\"" + kIcons + "rain.gif\" width='40' height='30'></td>",
      cell + "190" + white + "light rain" + end,
      cell + "55" + white + "41" + end,
      cell + "55" + white + "38" + end,
      cell + "55" + white + "90" + end,
      cell + "60" + white + wind + end,
      cell + "46" + white + "6" + end,
      "</tr>",
  });
}

const std::string kFoot = "</table>\r\n</div>\r\n</body>\r\n</html>\r\n";

int CountOf(const std::string& text, const std::string& part) {
  int count = 0;
  for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

class HistoricalPage : public Station {
 protected:
  HistoricalPage() {
    SetUpLocations(3);
    Settings.Location = "1";
    Settings.InstallPath = "C:\\station";
    Doubles.files[kPath] = "the old page";
  }

  // The file after a query with this reply.
  static std::string PageOf(const std::string& reply) {
    Doubles.replies.clear();
    Doubles.Reply("d=currenthistorical", reply);
    GetHistoricalData();
    return Doubles.files[kPath];
  }
};

TEST_F(HistoricalPage, OneQueryNamesTheSelectedLocationAlone) {
  GetHistoricalData();
  EXPECT_EQ(
      Doubles.requests,
      std::vector<std::string>{"forecast.skyloft.example/forecast.asp?pc=10001&t=xml&d=currenthistorical"});
}

TEST_F(HistoricalPage, RowsStandInTheOrderOfTheReply) {
  EXPECT_EQ(PageOf(Reply(Hour("Mar 07 2003 02:00PM", "205") + Hour("Mar 07 2003 01:00PM", "100"))),
            ExpectedHead() + ExpectedRow("Mar 07 2003 02:00PM", "SSW 7") +
                ExpectedRow("Mar 07 2003 01:00PM", "  E 7") + kFoot);
}

TEST_F(HistoricalPage, AVariableWindPrintsWithItsSpeed) {
  EXPECT_EQ(PageOf(Reply(Hour("now", "0"))), ExpectedHead() + ExpectedRow("now", "VAR 7") + kFoot);
}

TEST_F(HistoricalPage, ADayHasNoRowOfItsOwn) {
  const std::string page =
      PageOf(Reply(Hour("Mar 08 2003 12:00AM", "100") + Hour("Mar 07 2003 11:00PM", "100")));
  EXPECT_EQ(CountOf(page, "<tr>"), 3) << "the headings and two hours";
  EXPECT_EQ(CountOf(page, "Mar 08 2003 12:00AM"), 1);
}

TEST_F(HistoricalPage, AtMost101RowsAreShown) {
  for (const auto& [told, shown] : {std::pair{100, 100}, {101, 101}, {102, 101}, {150, 101}}) {
    std::string hours;
    for (int i = 0; i < told; ++i) hours += Hour("hour " + std::to_string(i) + ".", "100");
    const std::string page = PageOf(Reply(hours));
    EXPECT_EQ(CountOf(page, "<tr>"), shown + 1) << told;
    EXPECT_EQ(CountOf(page, "hour " + std::to_string(shown - 1) + "."), 1) << told;
    EXPECT_EQ(CountOf(page, "hour 101."), 0) << told;
  }
}

TEST_F(HistoricalPage, AReplyWithoutRowsOrWithAMissingCellLeavesTheOldPage) {
  for (const char* reply : {"", "garbage", "<r>", "<r/>"}) EXPECT_EQ(PageOf(reply), "the old page") << reply;
  for (const char* tag : {"Lt", "Ic", "Desc", "Tf", "Df", "Rh", "Wd", "Ws", "Vi"}) {
    EXPECT_EQ(PageOf(Reply(Hour("a", "100") + Hour("b", "100", tag))), "the old page") << tag;
  }
}

TEST_F(HistoricalPage, AnEmptyCellIsNotAMissingOne) {
  EXPECT_EQ(PageOf(Reply(Hour("", "100"))), ExpectedHead() + ExpectedRow("", "  E 7") + kFoot);
}

TEST_F(HistoricalPage, AFailedFetchOrWriteLeavesTheOldPage) {
  Doubles.http_failure.at = 1;
  EXPECT_EQ(PageOf(Reply(Hour("a", "100"))), "the old page");
  Doubles.file_failure.at = 1;
  EXPECT_EQ(PageOf(Reply(Hour("a", "100"))), "the old page");
  EXPECT_NE(PageOf(Reply(Hour("a", "100"))), "the old page") << "the faults were the reason";
}

TEST_F(HistoricalPage, ABusyTransportAndAMissingLocationAskNothing) {
  MainForm.Http.State = 1;
  EXPECT_EQ(PageOf(Reply(Hour("a", "100"))), "the old page");
  MainForm.Http.State = 0;
  Settings.Location = "";
  EXPECT_EQ(PageOf(Reply(Hour("a", "100"))), "the old page");
  EXPECT_TRUE(Doubles.requests.empty());
}

}  // namespace
}  // namespace skyloft
