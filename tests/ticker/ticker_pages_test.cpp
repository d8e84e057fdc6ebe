#include "ticker/ticker_pages.h"

#include "feed/addresses.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"
#include "ticker/ticker.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

class TickerPages : public Station {
 protected:
  // The second of two locations is on show; every value names its field.
  TickerPages() {
    SetUpLocations(2);
    TickerRotation.TickerLocationIndex = 1;
    LocationProfile[ProfileRow::TimeZone][1] = "-7";
    LocationProfile[ProfileRow::Dst][1] = "1";
    ObservationTables& r = ObservationRecord;
    for (const auto& [cells, text] : std::initializer_list<std::pair<ObservationTables::Cells*, const char*>>{
             {&r.City, "City"},
             {&r.State, "ST"},
             {&r.Lt, "Mar 07 2003 02:05PM"},
             {&r.Ic, "ic.gif"},
             {&r.Desc, "desc"},
             {&r.Tf, "tf"},
             {&r.Df, "df"},
             {&r.Rh, "rh"},
             {&r.At, "at"},
             {&r.Wd, "wd"},
             {&r.Ws, "ws"},
             {&r.Avg_H, "high"},
             {&r.Avg_L, "low"},
             {&Almanac.Sunrise, "6:45 AM"},
             {&Almanac.Sunset, "6:21 PM"},
             {&Almanac.Moonrise, "9:15 AM"},
             {&Almanac.Moonset, "11:02 PM"}}) {
      (*cells)[1] = text;
    }
    for (int h = 0; h < kForecastHours; ++h) {
      const std::string n = std::to_string(h);
      ForecastHour[1][h].Lt = "Mar 07 2003 " + std::string(h % 12 < 9 ? "0" : "") +
                              std::to_string(h % 12 + 1) + ":00" + (h < 12 ? "AM" : "PM");
      ForecastHour[1][h].Ic = "ic" + n;
      ForecastHour[1][h].Tf = "tf" + n;
    }
    for (int j = 0; j < kPeriods; ++j) {
      ForecastPeriod[1][j].Icon = "icon" + std::to_string(j);
      ForecastPeriod[1][j].Day = "day" + std::to_string(j);
      ForecastPeriod[1][j].Temperature = "temp" + std::to_string(j);
    }
  }

  static std::string Page(const std::string& title, const std::string& top, const std::string& bottom) {
    return "<html><head><meta http-equiv='Content-Language' content='en-us'>"
           "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>"
           "<title>" +
           title +
           "</title><style type='text/css'>body { overflow:hidden; }"
           "TD{font-family: Tahoma;font-size: 11px;}</style>"
           "<link rel='stylesheet' type='text/css' href='" +
           std::string(kStyleSheet) +
           "'></head><body bgcolor='#000000' topmargin='0' leftmargin='0'><div align='left'>"
           "<table border='0' height='35' cellspacing='1'><tr>" +
           top + "</tr><tr>" + bottom + "</tr></table></div></body></html>";
  }
  static std::string Spacer(int width) {
    return "<td width='" + std::to_string(width) + "' valign='middle' align='center' rowspan='2'></td>";
  }
  static std::string Icon(const std::string& path) {
    return "<td align='center' rowspan='2' valign='middle'><img border='0' src='file:" + path +
           "' width='40' height='30'></td>";
  }
  static std::string Heading(const std::string& text) {
    return "<b><font color='#99CCFF'>" + text + "</font></b>";
  }
  static std::string Value(const std::string& text) {
    return "<b><font color='#FFFFFF'>" + text + "</font></b>";
  }
  static std::string Cell(const std::string& content, const std::string& align = "center") {
    return "<td align='" + align + "' valign='middle' nowrap>" + content + "</td>";
  }
  static std::string First(const std::string& heading) { return Spacer(10) + Cell(Heading(heading), "left"); }
  static std::string Place() { return Cell(Value("City, ST"), "left"); }
};

TEST_F(TickerPages, TheBlankPageIsBlack) {
  EXPECT_EQ(TickerBlankPage(),
            "<html><body bgcolor='000000' topmargin='0' leftmargin='0' marginheight='0' "
            "marginwidth='0'></body></html>");
}

TEST_F(TickerPages, CurrentConditions) {
  const std::string s = Spacer(10);
  EXPECT_EQ(
      TickerCurrentPage(),
      Page("CurrentWeatherTicker",
           First("Current Conditions") + s + Cell(Heading("Reported At:")) + s + Icon("ic.gif") + Spacer(2) +
               "<td align='center' rowspan='2' valign='middle' width='80'>" + Value("desc") + "</td>" +
               Spacer(5) + Cell(Heading("Temp")) + s + Cell(Heading("Dewp")) + s + Cell(Heading("Rhum")) + s +
               Cell(Heading("Fslk")) + s + Cell(Heading("Wdir")) + s + Cell(Heading("Wspd")),
           Place() + Cell(Value("2:05 PM MDT")) + Cell(Value("tf F")) + Cell(Value("df F")) +
               Cell(Value("rh %")) + Cell(Value("at F")) + Cell(Value("wd")) + Cell(Value("ws mph"))));
}

TEST_F(TickerPages, FiveHoursBehindThePresentOne) {
  for (const auto& [present, columns] : {std::pair{7, 5}, {55, 5}, {56, 4}, {58, 2}, {60, 0}}) {
    Periods.TickerHourIndex = present;
    std::string top, bottom;
    for (int h = present + 1; h <= present + columns; ++h) {
      const int hour = h % 12 + 1;
      const std::string label =
          std::string(hour < 10 ? "0" : "") + std::to_string(hour) + (h < 12 ? " AM" : " PM");
      const std::string n = std::to_string(h);
      top += Icon("ic" + n) + Spacer(1) + Cell(Heading(label)) +
             "<td width='3 align='center' rowspan='2' valign='middle'></td>";
      bottom += Cell(Value("tf" + n + " F"));
    }
    EXPECT_EQ(TickerHourlyPage(),
              Page("HourlyForecastTicker", First("Hourly Forecast") + top, Place() + bottom))
        << present;
  }
}

TEST_F(TickerPages, FourPeriodsBehindTheFirstByTheSameTestAsTheHours) {
  for (const auto& [present, columns] : {std::pair{0, 4}, {56, 4}, {57, 3}, {58, 2}, {60, 0}}) {
    Periods.TickerHourIndex = present;
    std::string top, bottom;
    for (int i = 1; i <= columns; ++i) {
      const std::string n = std::to_string(i);
      top += Icon("icon" + n) + Spacer(1) + Cell(Heading("day" + n)) + Spacer(4);
      bottom += Cell(Value("temp" + n));
    }
    EXPECT_EQ(Ticker3DayPage(), Page("3DayForecastTicker", First("3-Day Forecast") + top, Place() + bottom))
        << present;
  }
}

TEST_F(TickerPages, NormalsSunAndMoonAndAnEmptyTimeLeavesItsHeadingAlone) {
  const std::string s = Spacer(10);
  const auto page = [&](const std::string& moonrise) {
    return Page("AlmanacTicker",
                First("Today's Almanac") + s + Cell(Heading("Normal High")) + s +
                    Cell(Heading("Normal Low")) + s + Icon("C:\\program files\\skyloft\\icons\\sun.gif") +
                    Cell(Heading(" Sunrise ") + Value("6:45 AM"), "left") +
                    Icon("C:\\program files\\skyloft\\icons\\moon.gif") +
                    Cell(Heading(" Moonrise ") + Value(moonrise), "left"),
                Place() + Cell(Value("high F")) + Cell(Value("low F")) +
                    Cell(Heading(" Sunset ") + Value("6:21 PM"), "left") +
                    Cell(Heading(" Moonset ") + Value("11:02 PM"), "left"));
  };
  EXPECT_EQ(TickerAlmanacPage(), page("9:15 AM"));
  Almanac.Moonrise[1] = "";
  EXPECT_EQ(TickerAlmanacPage(), page(""));
}

TEST_F(TickerPages, AMissingValueLeavesItsCellEmptyAndIsNoError) {
  ObservationRecord = {};
  Almanac = {};
  ForecastHour = {};
  ForecastPeriod = {};
  for (const auto page : {TickerCurrentPage, TickerHourlyPage, Ticker3DayPage, TickerAlmanacPage}) {
    EXPECT_NE(page().find(Value(", ")), std::string::npos);
  }
  EXPECT_NE(TickerHourlyPage().find(Cell(Heading(" "))), std::string::npos);
}

// A scroll page with its title, the scroller's size and the rest of what it is given.
std::string Scroll(const std::string& title, const std::string& size, const std::string& text,
                   const std::string& sound, const std::string& background, const std::string& font,
                   const std::string& font_size) {
  const auto param = [](const std::string& name, const std::string& value) {
    std::string column = "name='" + name + "'";
    column.resize(17, ' ');
    return "<param " + column + " value='" + value + "'>";
  };
  return "<html><head><title>" + title + "</title><style type='text/css'>body { overflow:hidden; }</style>" +
         "<bgsound src='file:" + sound + "'></head><body bgcolor='" + background +
         "' topmargin='0' leftmargin='0' marginheight='0' marginwidth='0'><div align='center'>"
         "<table border=0 width='100%'><tr><td><applet archive='HorizontalPro.jar' "
         "code='HorizontalPro.class' codebase='http://www.skyloft.example/skyloft/includes/' " +
         size + " viewastext>" + param("copyright", "Skyloft") + param("text", text) + param("speed", "10") +
         param("bgColor", background) + param("fontColor", font) + param("linkColor", background) +
         param("fontName", "Tahoma") + param("fontSize", font_size) + param("mousePause", "off") +
         "</applet></td></tr></table></div></body></html>";
}

TEST_F(TickerPages, AScrollFillsTheWidthOfTheWorkAreaAndIgnoresItsThirdArgument) {
  Doubles.work_area.width = 1366 * 15;
  const std::string page = TickerScrollPage("Take cover", "C:\\w.wav", "ignored", "FF0000", "FFFF00", "18");
  EXPECT_EQ(page, Scroll("Skyloft Ticker Scroll", "width='1366' height='35'", "Take cover", "C:\\w.wav",
                         "FF0000", "FFFF00", "18"));
  EXPECT_NE(page.find("<param name='speed'      value='10'>"), std::string::npos) << "the spacing is kept";
}

TEST_F(TickerPages, AMessageScrollHasAFixedSize) {
  EXPECT_EQ(
      MessageScrollPage("Hello", "", "000000", "FFFF00", "14"),
      Scroll("Skyloft Message Scroll", "width='740' height='15'", "Hello", "", "000000", "FFFF00", "14"));
}

TEST_F(TickerPages, AnApostropheDoesNotEndTheText) {
  const std::string page = TickerScrollPage("Don't <b>\"wait\"</b>", "", "", "FF0000", "FFFF00", "18");
  EXPECT_NE(page.find("value='Don&#39;t <b>\"wait\"</b>'>"), std::string::npos);
}

}  // namespace
}  // namespace skyloft
