#include "pages/conditions.h"

#include "core/tray.h"
#include "feed/addresses.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

// Fragments follow each other directly; their leading blanks belong to them.
std::string Join(std::initializer_list<std::string> fragments) {
  std::string text;
  for (const std::string& fragment : fragments) text += fragment;
  return text;
}

// The head of the small pages, up to the table's first row.
std::string PageHead(const std::string& title) {
  const std::string rule = "{font-family: Tahoma;font-size: 11px;}";
  return Join({
      "<html>",
      "<head>",
      "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>",
      "<title>" + title + "</title>",
      "<style type='text/css'>",
      "body { overflow:hidden; }",
      "TD" + rule,
      "P" + rule,
      "</style>",
      std::string("<link rel='stylesheet' type='text/css' href='") + kStyleSheet + "'>",
      "</head>",
      "<body topmargin='0' leftmargin='0' bgcolor='#000000'>",
      "<div align='left'>",
      "  <table border='0' width='150' cellspacing='0' cellpadding='2'>",
  });
}

std::string PageFoot() {
  return Join({"       </FONT></P></TD>", "    </tr>", "  </table>", "</div>", "</body>", "</html>"});
}

}  // namespace

std::string BuildCurrentConditionsPage() {
  const int slot = SelectedLocation();
  const ObservationTables& reading = ObservationRecord;
  return PageHead("Current Conditions Reported At") +
         Join({
             "    <tr>",
             "          <TD vAlign=center align=middle bgColor=#ffffcc><B>Current",
             "            Conditions</B></BR></font></TD>",
             "    </tr>",
             "    <tr>",
             "          <TD bgColor=#003399",
             "            <P align=center><FONT color=#ffffff><IMG height=30",
             "            src='file:" + reading.Ic[slot] + "' width=40 align=absMiddle border=0>  <B>" +
                 reading.Desc[slot],
             "            <BR>Temperature</B>: " + reading.Tf[slot] +
                 " F<B><BR>Dewpoint</B>: " + reading.Df[slot] + " F<B><BR>Feels",
             "            Like</B>: " + reading.At[slot] + " F<B><BR>Humidity</B>: " + reading.Rh[slot] +
                 " %<B><BR>Wind</B>: " + reading.Wd[slot] + " " + reading.Ws[slot] + " mph",
             "            <BR><B>Pressure</B>: " + reading.Slp[slot] +
                 " in<BR><B>Visibility</B>: " + reading.Vi[slot] + " mi",
         }) +
         PageFoot();
}

void CurrentConditions() {
  MainForm.LocationLabel.Caption = LocationProfile[ProfileRow::Title][SelectedLocation()];
  MainForm.WeatherConditionsBanner.Document = BuildCurrentConditionsPage();
  SystemTray();
}

}  // namespace skyloft
