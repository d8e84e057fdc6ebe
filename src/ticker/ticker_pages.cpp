#include "ticker/ticker_pages.h"

#include <string_view>

#include "base/dates.h"
#include "base/values.h"
#include "feed/addresses.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "feed/xml_readers.h"
#include "forms/forms.h"
#include "pages/fragments.h"
#include "platform/screen.h"
#include "ticker/ticker.h"
#include "weather/almanac.h"
#include "weather/periods.h"
#include "weather/time.h"

namespace skyloft {
namespace {

constexpr const char* kHeading = "#99CCFF";
constexpr const char* kValue = "#FFFFFF";
constexpr int kLastTickerHour = 60;

std::string Bold(std::string_view color, std::string_view text) {
  return "<b><font color='" + std::string(color) + "'>" + std::string(text) + "</font></b>";
}

// A table of two rows, written column by column; some columns are one cell over both rows.
class TickerTable {
 public:
  TickerTable() { Spacer(10); }

  void Spacer(int width) {
    top_ += "<td width='" + std::to_string(width) + "' valign='middle' align='center' rowspan='2'></td>";
  }
  // Its first attribute lacks a quotation mark, which is meant.
  void BrokenSpacer() { top_ += "<td width='3 align='center' rowspan='2' valign='middle'></td>"; }
  void Icon(const std::string& path) {
    Append(top_, {"<td align='center' rowspan='2' valign='middle'><img border='0' src='file:", path,
                  "' width='40' height='30'></td>"});
  }
  // A text over both rows.
  void Tall(const std::string& text, int width) {
    Append(top_, {"<td align='center' rowspan='2' valign='middle' width='", std::to_string(width), "'>",
                  Bold(kValue, text), "</td>"});
  }
  // A cell in each row; `align` of both.
  void Column(const std::string& top, const std::string& bottom, const char* align = "center") {
    AppendCell(top_, top, align);
    AppendCell(bottom_, bottom, align);
  }

  std::string Page(std::string_view title) const {
    std::string page;
    Append(page, {"<html>",
                  "<head>",
                  "<meta http-equiv='Content-Language' content='en-us'>",
                  "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>",
                  title,
                  "<style type='text/css'>",
                  "body { overflow:hidden; }",
                  "TD{font-family: Tahoma;font-size: 11px;}",
                  "</style>",
                  "<link rel='stylesheet' type='text/css' href='",
                  kStyleSheet,
                  "'>",
                  "</head>",
                  "<body bgcolor='#000000' topmargin='0' leftmargin='0'>",
                  "<div align='left'>",
                  "<table border='0' height='35' cellspacing='1'>",
                  "<tr>",
                  top_,
                  "</tr>",
                  "<tr>",
                  bottom_,
                  "</tr>",
                  "</table>",
                  "</div>",
                  "</body>",
                  "</html>"});
    return page;
  }

 private:
  static void AppendCell(std::string& row, const std::string& content, const char* align) {
    Append(row, {"<td align='", align, "' valign='middle' nowrap>", content, "</td>"});
  }

  std::string top_, bottom_;
};

// The heading of the page over the place.
void AppendPlace(TickerTable& table, const char* heading) {
  const int slot = TickerRotation.TickerLocationIndex;
  table.Column(Bold(kHeading, heading),
               Bold(kValue, ObservationRecord.City[slot] + ", " + ObservationRecord.State[slot]), "left");
}

// Heading and value in one cell each.
void AppendRiseAndSet(TickerTable& table, const std::string& body, const std::string& rise,
                      const std::string& set) {
  table.Column(Bold(kHeading, " " + body + "rise ") + Bold(kValue, rise),
               Bold(kHeading, " " + body + "set ") + Bold(kValue, set), "left");
}

// "05 PM" of "Mar 07 2003 05:00PM": the hour's two characters and the two letters.
std::string HourLabel(const std::string& time) {
  return std::string(LeftText(RightText(time, 7), 2)) + " " + std::string(RightText(time, 2));
}

// Whether the ticker's hour leaves an i-th column. The periods go by the same test as the hours, which is
// meant.
bool HasColumn(int i) { return Periods.TickerHourIndex + i <= kLastTickerHour; }

// A text as the value of an attribute in single quotes.
std::string Quoted(std::string_view text) {
  std::string out;
  for (const char c : text) c == '\'' ? out += "&#39;" : out += c;
  return out;
}

struct ScrollPage {
  const char* title;
  std::string size;  // attributes of the scroller
  std::string text, sound, background, font, font_size;
};

std::string BuildScrollPage(const ScrollPage& page) {
  std::string out;
  Append(out, {"<html>",
               "<head>",
               page.title,
               "<style type='text/css'>",
               "body { overflow:hidden; }",
               "</style>",
               "<bgsound src='file:",
               page.sound,
               "'>",
               "</head>",
               "<body bgcolor='",
               page.background,
               "' topmargin='0' leftmargin='0' marginheight='0' marginwidth='0'>",
               "<div align='center'>",
               "<table border=0 width='100%'>",
               "<tr>",
               "<td>",
               "<applet archive='HorizontalPro.jar' code='HorizontalPro.class' codebase='",
               kScrollerFolder,
               "' ",
               page.size,
               " viewastext>"});
  Append(
      out,
      {"<param name='copyright'  value='Skyloft'>",
       "<param name='text'       value='" + Quoted(page.text) + "'>", "<param name='speed'      value='10'>",
       "<param name='bgColor'    value='" + page.background + "'>",
       "<param name='fontColor'  value='" + page.font + "'>",
       "<param name='linkColor'  value='" + page.background + "'>",  // no colour of its own: meant
       "<param name='fontName'   value='Tahoma'>", "<param name='fontSize'   value='" + page.font_size + "'>",
       "<param name='mousePause' value='off'>"});
  Append(out, {"</applet>", "</td>", "</tr>", "</table>", "</div>", "</body>", "</html>"});
  return out;
}

}  // namespace

std::string TickerBlankPage() {
  return "<html><body bgcolor='000000' topmargin='0' leftmargin='0' marginheight='0' "
         "marginwidth='0'></body></html>";
}

std::string TickerCurrentPage() {
  const int slot = TickerRotation.TickerLocationIndex;
  const ObservationTables& reading = ObservationRecord;
  const std::string reported = Format(reading.Lt[slot], "h:mm AM/PM ") + LocationZone(slot);
  TickerTable table;
  AppendPlace(table, "Current Conditions");
  table.Spacer(10);
  table.Column(Bold(kHeading, "Reported At:"), Bold(kValue, reported));
  table.Spacer(10);
  table.Icon(reading.Ic[slot]);
  table.Spacer(2);
  table.Tall(reading.Desc[slot], 80);
  table.Spacer(5);
  const std::pair<const char*, std::string> values[] = {
      {"Temp", reading.Tf[slot] + " F"}, {"Dewp", reading.Df[slot] + " F"},
      {"Rhum", reading.Rh[slot] + " %"}, {"Fslk", reading.At[slot] + " F"},
      {"Wdir", reading.Wd[slot]},        {"Wspd", reading.Ws[slot] + " mph"},
  };
  bool first = true;
  for (const auto& [heading, value] : values) {
    if (!first) table.Spacer(10);
    first = false;
    table.Column(Bold(kHeading, heading), Bold(kValue, value));
  }
  return table.Page("<title>CurrentWeatherTicker</title>");
}

std::string TickerHourlyPage() {
  TickerTable table;
  AppendPlace(table, "Hourly Forecast");
  for (int i = 1; i <= 5 && HasColumn(i); ++i) {
    const ForecastHourFields& hour =
        ForecastHour[TickerRotation.TickerLocationIndex][Periods.TickerHourIndex + i];
    table.Icon(hour.Ic);
    table.Spacer(1);
    table.Column(Bold(kHeading, HourLabel(hour.Lt)), Bold(kValue, hour.Tf + " F"));
    table.BrokenSpacer();
  }
  return table.Page("<title>HourlyForecastTicker</title>");
}

std::string Ticker3DayPage() {
  TickerTable table;
  AppendPlace(table, "3-Day Forecast");
  for (int i = 1; i <= 4 && HasColumn(i); ++i) {
    const ForecastPeriodFields& period = ForecastPeriod[TickerRotation.TickerLocationIndex][i];
    table.Icon(period.Icon);
    table.Spacer(1);
    table.Column(Bold(kHeading, period.Day), Bold(kValue, period.Temperature));
    table.Spacer(4);
  }
  return table.Page("<title>3DayForecastTicker</title>");
}

std::string TickerAlmanacPage() {
  const int slot = TickerRotation.TickerLocationIndex;
  TickerTable table;
  AppendPlace(table, "Today's Almanac");
  table.Spacer(10);
  table.Column(Bold(kHeading, "Normal High"), Bold(kValue, ObservationRecord.Avg_H[slot] + " F"));
  table.Spacer(10);
  table.Column(Bold(kHeading, "Normal Low"), Bold(kValue, ObservationRecord.Avg_L[slot] + " F"));
  table.Spacer(10);
  table.Icon(IconPath("sun.gif"));
  AppendRiseAndSet(table, "Sun", Almanac.Sunrise[slot], Almanac.Sunset[slot]);
  table.Icon(IconPath("moon.gif"));
  AppendRiseAndSet(table, "Moon", Almanac.Moonrise[slot], Almanac.Moonset[slot]);
  return table.Page("<title>AlmanacTicker</title>");
}

std::string TickerScrollPage(const std::string& text, const std::string& sound, const std::string&,
                             const std::string& background, const std::string& font,
                             const std::string& font_size) {
  const std::string width = NumberText(Divide(GetWorkArea().width, kTwipsPerPixel));
  return BuildScrollPage({.title = "<title>Skyloft Ticker Scroll</title>",
                          .size = "width='" + width + "' height='35'",
                          .text = text,
                          .sound = sound,
                          .background = background,
                          .font = font,
                          .font_size = font_size});
}

std::string MessageScrollPage(const std::string& text, const std::string& sound,
                              const std::string& background, const std::string& font,
                              const std::string& font_size) {
  return BuildScrollPage({.title = "<title>Skyloft Message Scroll</title>",
                          .size = "width='740' height='15'",
                          .text = text,
                          .sound = sound,
                          .background = background,
                          .font = font,
                          .font_size = font_size});
}

}  // namespace skyloft
