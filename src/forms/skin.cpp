// The skin: where every control lies. Pixels in the form or, for the members of a frame, in the frame.
#include "forms/forms.h"
#include "platform/screen.h"

namespace skyloft {
namespace {

struct PlaceRow {
  const char* control;
  int left, top, width, height;
};

constexpr PlaceRow kSkin[] = {
    // The main window. Left column, 150 wide.
    {"MainForm", 0, 0, 800, 590},
    {"MainForm.LocationLabel", 18, 48, 150, 20},
    {"MainForm.WeatherConditionsBanner", 18, 70, 150, 236},
    {"MainForm.Thumbnail", 18, 314, 150, 124},
    {"MainForm.SevereWeatherLabel", 18, 444, 150, 15},
    {"MainForm.TornadoButton", 18, 461, 46, 34},
    {"MainForm.ThunderstormButton", 70, 461, 46, 34},
    {"MainForm.FloodButton", 122, 461, 46, 34},
    {"MainForm.PersonalLabel", 18, 498, 150, 15},
    {"MainForm.PersonalAlertButton", 18, 514, 150, 28},
    // Top.
    {"MainForm.Sponsor1", 170, 10, 236, 26},
    {"MainForm.TimeValue", 430, 14, 218, 18},
    {"MainForm.HelpButton", 656, 10, 26, 26},
    {"MainForm.MenuButton", 688, 10, 26, 26},
    {"MainForm.ExitButton", 720, 10, 26, 26},
    // The four lists.
    {"MainForm.LocationSelection", 180, 58, 122, 22},
    {"MainForm.CategorySelection", 306, 58, 120, 22},
    {"MainForm.ProductSelection", 430, 58, 184, 22},
    {"MainForm.TimeSelection", 618, 58, 166, 22},
    {"MainForm.TimeLabel", 620, 42, 164, 15},
    {"MainForm.Channel", 180, 86, 38, 18},
    {"MainForm.ProductTitle", 226, 85, 390, 20},
    {"MainForm.ProgressBar", 624, 90, 160, 10},
    // The display.
    {"MainForm.Display1", 180, 108, 604, 415},
    {"MainForm.ImagePoints", 0, 0, 7, 7},
    {"MainForm.Display2", 180, 108, 604, 415},
    {"MainForm.Legend", 180, 483, 604, 40},
    // Player, view, zoom.
    {"MainForm.BackButton", 180, 528, 34, 26},
    {"MainForm.NextButton", 217, 528, 34, 26},
    {"MainForm.PlayButton", 254, 528, 34, 26},
    {"MainForm.StopButton", 291, 528, 34, 26},
    {"MainForm.LocalButton", 338, 528, 50, 26},
    {"MainForm.NationalButton", 391, 528, 50, 26},
    {"MainForm.AreaZoomButton", 454, 528, 34, 26},
    {"MainForm.ZoomInButton", 491, 528, 34, 26},
    {"MainForm.ZoomOutButton", 528, 528, 34, 26},
    {"MainForm.ResetButton", 565, 528, 34, 26},
    {"MainForm.LegendButton", 608, 528, 50, 26},
    {"MainForm.Sponsor0", 664, 528, 120, 26},
    // The foot.
    {"MainForm.Sponsor2", 30, 560, 740, 15},

    {"InitializingForm", 0, 0, 420, 200},
    {"InitializingForm.SoftwareVersion", 24, 16, 372, 18},
    {"InitializingForm.SoftwareStatus", 24, 128, 372, 18},
    {"InitializingForm.ProgressBar", 24, 150, 372, 12},
    {"InitializingForm.EmailLink", 24, 172, 372, 18},

    {"TickerForm", 0, 0, 800, 35},
    {"TickerForm.Sponsor4", 0, 0, 90, 35},
    {"TickerForm.Ticker", 88, 0, 712, 35},

    {"SetupWizardForm", 0, 0, 560, 420},
    {"SetupWizardForm.SetupFrame", 12, 12, 536, 330},
    {"SetupWizardForm.Heading", 20, 24, 496, 30},
    {"SetupWizardForm.Introduction", 20, 70, 496, 80},
    {"SetupWizardForm.StartLabel", 20, 170, 496, 24},
    {"SetupWizardForm.EmailHeading", 20, 16, 496, 24},
    {"SetupWizardForm.EmailAddress1Label", 20, 56, 496, 18},
    {"SetupWizardForm.EmailAddress1", 20, 76, 360, 24},
    {"SetupWizardForm.EmailAddress2Label", 20, 112, 496, 18},
    {"SetupWizardForm.EmailAddress2", 20, 132, 360, 24},
    {"SetupWizardForm.EmailOptionValue", 20, 176, 496, 22},
    {"SetupWizardForm.EmailPrivacyLabel", 20, 216, 496, 40},
    {"SetupWizardForm.PlaceLabel", 20, 20, 496, 40},
    {"SetupWizardForm.ZipCodeOption", 20, 84, 160, 24},
    {"SetupWizardForm.ZipCodeInput", 190, 84, 120, 24},
    {"SetupWizardForm.CityStateOption", 20, 134, 160, 24},
    {"SetupWizardForm.CityInput", 190, 134, 180, 24},
    {"SetupWizardForm.StateLabel", 390, 112, 80, 18},
    {"SetupWizardForm.StateInput", 390, 134, 80, 24},
    {"SetupWizardForm.VerificationHeading", 20, 16, 496, 24},
    {"SetupWizardForm.VerificationLabel", 20, 46, 496, 40},
    {"SetupWizardForm.ZipCodeLabel", 20, 100, 150, 20},
    {"SetupWizardForm.ZipCodeResult", 190, 100, 320, 20},
    {"SetupWizardForm.CityStateLabel", 20, 126, 150, 20},
    {"SetupWizardForm.CityStateResult", 190, 126, 320, 20},
    {"SetupWizardForm.CountyLabel", 20, 152, 150, 20},
    {"SetupWizardForm.CountyResult", 190, 152, 320, 20},
    {"SetupWizardForm.AreaCodeLabel", 20, 178, 150, 20},
    {"SetupWizardForm.AreaCodeResult", 190, 178, 320, 20},
    {"SetupWizardForm.TimeZoneLabel", 20, 204, 150, 20},
    {"SetupWizardForm.TimeZoneResult", 190, 204, 320, 20},
    {"SetupWizardForm.LatitudeLabel", 20, 230, 150, 20},
    {"SetupWizardForm.LatitudeResult", 190, 230, 320, 20},
    {"SetupWizardForm.LongitudeLabel", 20, 256, 150, 20},
    {"SetupWizardForm.LongitudeResult", 190, 256, 320, 20},
    {"SetupWizardForm.NWSHeading", 20, 16, 496, 24},
    {"SetupWizardForm.NWSLabel", 20, 46, 496, 40},
    {"SetupWizardForm.TornadoButton", 20, 98, 56, 34},
    {"SetupWizardForm.TornadoWarning", 90, 104, 220, 22},
    {"SetupWizardForm.TornadoWatch", 316, 104, 204, 22},
    {"SetupWizardForm.ThunderstormButton", 20, 142, 56, 34},
    {"SetupWizardForm.SevereThunderstormWarning", 90, 148, 220, 22},
    {"SetupWizardForm.SevereThunderstormWatch", 316, 148, 204, 22},
    {"SetupWizardForm.FloodButton", 20, 186, 56, 34},
    {"SetupWizardForm.FlashFloodWarning", 90, 192, 220, 22},
    {"SetupWizardForm.FlashFloodWatch", 316, 192, 204, 22},
    {"SetupWizardForm.NWSAlertMessage", 90, 242, 120, 22},
    {"SetupWizardForm.NWSAlertAudio", 220, 242, 120, 22},
    {"SetupWizardForm.NWSAlertEmail", 350, 242, 120, 22},
    {"SetupWizardForm.NWSFootnote", 20, 290, 496, 20},
    {"SetupWizardForm.Personal1Heading", 20, 16, 496, 24},
    {"SetupWizardForm.Personal1Label", 20, 46, 496, 72},
    {"SetupWizardForm.PersonalAlertButton", 20, 130, 150, 28},
    {"SetupWizardForm.SKLTPersonalAlert", 190, 133, 326, 22},
    {"SetupWizardForm.SKLTAlertMessage", 190, 176, 110, 22},
    {"SetupWizardForm.SKLTAlertAudio", 310, 176, 110, 22},
    {"SetupWizardForm.SKLTAlertEmail", 430, 176, 90, 22},
    {"SetupWizardForm.PersonalFootnote", 20, 290, 496, 20},
    {"SetupWizardForm.Personal2Heading", 20, 16, 496, 24},
    {"SetupWizardForm.Personal2Label", 20, 46, 496, 40},
    {"SetupWizardForm.MaximumTemperature", 20, 100, 220, 24},
    {"SetupWizardForm.MaximumTemperatureRelation", 250, 100, 60, 24},
    {"SetupWizardForm.MaximumTemperatureValue", 320, 100, 90, 24},
    {"SetupWizardForm.HeatIndex", 20, 138, 220, 24},
    {"SetupWizardForm.HeatIndexRelation", 250, 138, 60, 24},
    {"SetupWizardForm.HeatIndexValue", 320, 138, 90, 24},
    {"SetupWizardForm.MinimumTemperature", 20, 176, 220, 24},
    {"SetupWizardForm.MinimumTemperatureRelation", 250, 176, 60, 24},
    {"SetupWizardForm.MinimumTemperatureValue", 320, 176, 90, 24},
    {"SetupWizardForm.WindChill", 20, 214, 220, 24},
    {"SetupWizardForm.WindChillRelation", 250, 214, 60, 24},
    {"SetupWizardForm.WindChillValue", 320, 214, 90, 24},
    {"SetupWizardForm.WindSpeed", 20, 252, 220, 24},
    {"SetupWizardForm.WindSpeedRelation", 250, 252, 60, 24},
    {"SetupWizardForm.WindSpeedValue", 320, 252, 90, 24},
    {"SetupWizardForm.Personal3Heading", 20, 16, 496, 24},
    {"SetupWizardForm.Personal3Label", 20, 46, 496, 40},
    {"SetupWizardForm.HeavyRain", 20, 100, 164, 22},
    {"SetupWizardForm.ModerateRain", 20, 132, 164, 22},
    {"SetupWizardForm.LightRain", 20, 164, 164, 22},
    {"SetupWizardForm.RainShower", 20, 196, 164, 22},
    {"SetupWizardForm.Thunderstorm", 20, 228, 164, 22},
    {"SetupWizardForm.ChanceThunderstorm", 20, 260, 164, 22},
    {"SetupWizardForm.FreezingRain", 190, 100, 164, 22},
    {"SetupWizardForm.FreezingRainSnow", 190, 132, 164, 22},
    {"SetupWizardForm.RainSnow", 190, 164, 164, 22},
    {"SetupWizardForm.HeavySnow", 360, 100, 164, 22},
    {"SetupWizardForm.ModerateSnow", 360, 132, 164, 22},
    {"SetupWizardForm.LightSnow", 360, 164, 164, 22},
    {"SetupWizardForm.SnowShower", 360, 196, 164, 22},
    {"SetupWizardForm.LocationTitleHeader", 20, 16, 496, 28},
    {"SetupWizardForm.LocationTitleMessage", 20, 54, 496, 80},
    {"SetupWizardForm.TitleLabel", 20, 146, 300, 18},
    {"SetupWizardForm.TitleResult", 20, 166, 300, 24},
    {"SetupWizardForm.Status", 12, 350, 536, 20},
    {"SetupWizardForm.CancelButton", 12, 380, 100, 30},
    {"SetupWizardForm.BackButton", 336, 380, 100, 30},
    {"SetupWizardForm.NextButton", 448, 380, 100, 30},

    {"SystemFontForm", 0, 0, 520, 330},
    {"SystemFontForm.Heading", 20, 16, 480, 22},
    {"SystemFontForm.Message", 20, 46, 480, 80},
    {"SystemFontForm.Step1", 20, 134, 480, 18},
    {"SystemFontForm.Step2", 20, 158, 480, 18},
    {"SystemFontForm.Step3", 20, 182, 480, 18},
    {"SystemFontForm.Step4", 20, 206, 480, 18},
    {"SystemFontForm.Step5", 20, 230, 480, 18},
    {"SystemFontForm.Step6", 20, 254, 480, 18},
    {"SystemFontForm.OKButton", 210, 286, 100, 30},

    {"SystemOptionsForm", 0, 0, 420, 380},
    {"SystemOptionsForm.TabStripOptions", 10, 10, 400, 30},
    {"SystemOptionsForm.OptionsFrame", 10, 42, 400, 240},
    {"SystemOptionsForm.Email1Label", 20, 30, 360, 18},
    {"SystemOptionsForm.Email1Value", 20, 50, 360, 24},
    {"SystemOptionsForm.Email2Label", 20, 84, 360, 18},
    {"SystemOptionsForm.Email2Value", 20, 104, 360, 24},
    {"SystemOptionsForm.EmailOptionValue", 20, 144, 360, 22},
    {"SystemOptionsForm.ShowTicker", 20, 26, 360, 22},
    {"SystemOptionsForm.AlwaysOnTop", 20, 50, 360, 22},
    {"SystemOptionsForm.TopScreenPosition", 20, 74, 360, 22},
    {"SystemOptionsForm.BottomScreenPosition", 20, 98, 360, 22},
    {"SystemOptionsForm.ShowCurrentConditions", 20, 130, 360, 22},
    {"SystemOptionsForm.ShowHourlyForecast", 20, 154, 360, 22},
    {"SystemOptionsForm.Show3DayForecast", 20, 178, 360, 22},
    {"SystemOptionsForm.ShowAlmanac", 20, 202, 360, 22},
    {"SystemOptionsForm.CurrentConditionsLabel", 20, 34, 220, 24},
    {"SystemOptionsForm.CurrentConditionsIndexMax", 260, 34, 100, 24},
    {"SystemOptionsForm.ForecastLabel", 20, 70, 220, 24},
    {"SystemOptionsForm.ForecastIndexMax", 260, 70, 100, 24},
    {"SystemOptionsForm.NexradLabel", 20, 106, 220, 24},
    {"SystemOptionsForm.NexradIndexMax", 260, 106, 100, 24},
    {"SystemOptionsForm.NWSLabel", 20, 142, 220, 24},
    {"SystemOptionsForm.NWSIndexMax", 260, 142, 100, 24},
    {"SystemOptionsForm.AutoConnect", 20, 34, 360, 22},
    {"SystemOptionsForm.SponsorBanner", 10, 290, 400, 40},
    {"SystemOptionsForm.OKButton", 310, 340, 100, 30},

    {"RouteScopeForm", 0, 0, 800, 520},
    {"RouteScopeForm.RouteScopeBrowser", 10, 10, 780, 456},
    {"RouteScopeForm.Label1", 14, 482, 96, 22},
    {"RouteScopeForm.Label3", 112, 482, 110, 22},
    {"RouteScopeForm.Label2", 240, 482, 74, 22},
    {"RouteScopeForm.Label4", 316, 482, 110, 22},
    {"RouteScopeForm.Print", 582, 478, 100, 30},
    {"RouteScopeForm.Done", 690, 478, 100, 30},

    {"RouteScopeOptionsForm", 0, 0, 300, 170},
    {"RouteScopeOptionsForm.Heading", 20, 14, 260, 24},
    {"RouteScopeOptionsForm.HoursLabel", 20, 54, 150, 24},
    {"RouteScopeOptionsForm.StopHours", 180, 54, 100, 24},
    {"RouteScopeOptionsForm.MinutesLabel", 20, 88, 150, 24},
    {"RouteScopeOptionsForm.StopMinutes", 180, 88, 100, 24},
    {"RouteScopeOptionsForm.OK", 180, 128, 100, 30},
};

void Place(Control& control, const PlaceRow& row) {
  const int scale = dynamic_cast<Form*>(&control) ? kTwipsPerPixel : 1;
  control.Left = row.left * scale;
  control.Top = row.top * scale;
  control.Width = row.width * scale;
  control.Height = row.height * scale;
}

}  // namespace

void CentreForm(Form& form) {
  const ScreenSize screen = GetScreenSize();
  form.Top = screen.height / 2 - form.Height / 2;
  form.Left = screen.width / 2 - form.Width / 2;
}

void ApplySkin() {
  for (const PlaceRow& row : kSkin) {
    if (Control* control = FindControl(row.control)) {
      Place(*control, row);
      continue;
    }
    for (Control* member : FindMembers(row.control)) Place(*member, row);  // they lie on one another
  }
}

}  // namespace skyloft
