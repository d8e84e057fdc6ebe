#include "pages/conditions.h"

#include "feed/addresses.h"
#include "feed/observations.h"
#include "forms/main_form.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

class ConditionsPage : public Station {
 protected:
  static void SetUpReading() {
    SetUpLocations(2);
    Settings.Location = "1";
    ObservationTables& record = ObservationRecord;
    record.Ic[1] = "C:\\program files\\skyloft\\icons\\sprtcloud.gif";
    record.Desc[1] = "partly cloudy";
    record.Tf[1] = "68";
    record.Df[1] = "50";
    record.At[1] = "67";
    record.Rh[1] = "55";
    record.Wd[1] = "SSW";
    record.Ws[1] = "12";
    record.Slp[1] = "29.92";
    record.Vi[1] = "10";
  }
};

// The page by its fragments, which follow each other directly, with the values of the reading above.
const std::string kExpectedPage =
    std::string("<html>") + "<head>" +
    "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>" +
    "<title>Current Conditions Reported At</title>" + "<style type='text/css'>" +
    "body { overflow:hidden; }" + "TD" + "{" + "font-family: Tahoma;" + "font-size: 11px;" + "}" + "P" + "{" +
    "font-family: Tahoma;" + "font-size: 11px;" + "}" + "</style>" +
    "<link rel='stylesheet' type='text/css' href='" + kStyleSheet + "'>" + "</head>" +
    "<body topmargin='0' leftmargin='0' bgcolor='#000000'>" + "<div align='left'>" +
    "  <table border='0' width='150' cellspacing='0' cellpadding='2'>" + "    <tr>" +
    "          <TD vAlign=center align=middle bgColor=#ffffcc><B>Current" +
    "            Conditions</B></BR></font></TD>" + "    </tr>" + "    <tr>" +
    "          <TD bgColor=#003399" + "            <P align=center><FONT color=#ffffff><IMG height=30" +
    "            src='file:" + "C:\\program files\\skyloft\\icons\\sprtcloud.gif" +
    "' width=40 align=absMiddle border=0>  <B>" + "partly cloudy" +
    "            <BR>Temperature</B>: " + "68" + " F<B><BR>Dewpoint</B>: " + "50" + " F<B><BR>Feels" +
    "            Like</B>: " + "67" + " F<B><BR>Humidity</B>: " + "55" + " %<B><BR>Wind</B>: " + "SSW" + " " +
    "12" + " mph" + "            <BR><B>Pressure</B>: " + "29.92" + " in" + "<BR><B>Visibility</B>: " + "10" +
    " mi" + "       </FONT></P></TD>" + "    </tr>" + "  </table>" + "</div>" + "</body>" + "</html>";

TEST_F(ConditionsPage, TheCurrentPageIsBuiltOfItsFragments) {
  SetUpReading();
  EXPECT_EQ(BuildCurrentConditionsPage(), kExpectedPage);
}

TEST_F(ConditionsPage, AVariableWindPrintsWithItsSpeedLikeAnyOther) {
  SetUpReading();
  ObservationRecord.Wd[1] = "VAR";
  EXPECT_NE(BuildCurrentConditionsPage().find("Wind</B>: VAR 12 mph"), std::string::npos);
}

TEST_F(ConditionsPage, ACompassTextKeepsItsLeadingBlanks) {
  SetUpReading();
  ObservationRecord.Wd[1] = "  E";
  EXPECT_NE(BuildCurrentConditionsPage().find("Wind</B>:   E 12 mph"), std::string::npos);
}

TEST_F(ConditionsPage, AMissingFieldPrintsNothingAndItsLabelStays) {
  SetUpReading();
  ObservationRecord.Slp[1] = "";
  EXPECT_NE(BuildCurrentConditionsPage().find("<B>Pressure</B>:  in<BR>"), std::string::npos);
}

TEST_F(ConditionsPage, CurrentConditionsShowsTitleAndPageOfTheSelectedLocation) {
  SetUpReading();
  CurrentConditions();
  EXPECT_EQ(MainForm.LocationLabel.Caption.Get(), "Town 1");
  EXPECT_EQ(MainForm.WeatherConditionsBanner.Document.Get(), kExpectedPage);
}

// The forecast page by its fragments; values unlike each other, so that none can stand in another's place.
std::string ForecastPage(const std::string& direction) {
  return std::string("<html>") + "<head>" +
         "<meta http-equiv='Content-Type' content='text/html; charset=windows-1252'>" +
         "<title>Forecast Conditions</title>" + "<style type='text/css'>" + "body { overflow:hidden; }" +
         "TD" + "{" + "font-family: Tahoma;" + "font-size: 11px;" + "}" + "P" + "{" + "font-family: Tahoma;" +
         "font-size: 11px;" + "}" + "</style>" + "<link rel='stylesheet' type='text/css' href='" +
         kStyleSheet + "'>" + "</head>" + "<body topmargin='0' leftmargin='0' bgcolor='#000000'>" +
         "<div align='left'>" + "  <table border='0' width='150' cellspacing='0' cellpadding='2'>" +
         "    <tr>" + "          <TD vAlign=center align=middle bgColor=#ffffcc><B>Forecast" +
         "            Conditions</B></BR>" + "</BR>" + "Town, KS" + "3/8/2003 9:00:00 AM" + "            " +
         "</font></TD>" + "    </tr>" + "    <tr>" + "          <TD bgColor=#003399" +
         "            <P align=center><FONT color=#ffffff><IMG height=30" +
         "            src='file:" + "C:\\x\\icons\\rain.gif" + "' width=40 align=absMiddle border=0>  <B>" +
         "rain" + "            <BR>Temperature</B>: " + "41" + " F<B><BR>Dewpoint</B>: " + "38" +
         " F<B><BR>Feels" + "            Like</B>: " + "35" + " F<B><BR>Humidity</B>: " + "90" +
         " %<B><BR>Wind</B>: " + direction + " " + "7" + " mph" + "       </FONT></P></TD>" + "    </tr>" +
         "  </table>" + "</div>" + "</body>" + "</html>";
}

TEST_F(ConditionsPage, TheForecastPageIsBuiltOfItsFragmentsAndStopsAtTheWind) {
  for (const char* direction : {"NNW", "  E", "VAR"}) {
    EXPECT_EQ(BuildForecastConditionsPage("Town, KS", "3/8/2003 9:00:00 AM", "C:\\x\\icons\\rain.gif", "rain",
                                          "41", "38", "35", "90", direction, "7"),
              ForecastPage(direction));
  }
}

TEST_F(ConditionsPage, WithoutALocationTheCallerGetsTheError) {
  EXPECT_THROW(BuildCurrentConditionsPage(), RuntimeError);
  EXPECT_THROW(CurrentConditions(), RuntimeError);
}

}  // namespace
}  // namespace skyloft
