#include "settings/settings.h"

#include "base/guard.h"
#include "base/values.h"
#include "feed/hosts.h"
#include "feed/transport.h"
#include "forms/forms.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "platform/registry_store.h"
#include "settings/registry.h"

namespace skyloft {

SettingsState Settings;

namespace {

int IndexOf(const std::string& text, const char* name) {
  if (text.empty()) throw RuntimeError(std::string(name) + " is empty");
  return WholeNumber(text);
}

std::string NumberOrEmpty(const std::string& text) {
  return text.empty() ? "" : NumberText(LenientNumber(text));
}

void PlaceWindow(const std::string& top, const std::string& left) {
  if (!top.empty() && !left.empty()) {
    const double y = StrictNumber(top);
    const double x = StrictNumber(left);
    MainForm.Top = WholeNumber(NumberText(y));
    MainForm.Left = WholeNumber(NumberText(x));
    return;
  }
  CentreForm(MainForm);
}

void Load(std::string& value, const char* name, const std::string& fallback) {
  value = ReadSetting(kSettingsKey, name, fallback);
}

void Save(const char* name, const std::string& text) { WriteSetting(kSettingsKey, name, text); }

void PutTrayLocation() { Save("TrayLocationIndex", NumberText(LenientNumber(Settings.TrayLocationIndex))); }

// An option that is a check box.
struct CheckRow {
  const char* name;
  const char* fallback;
  CheckBox SystemOptionsFormControls::*box;
};
const CheckRow kCheckBoxes[] = {
    {"EmailOption", "1", &SystemOptionsFormControls::EmailOptionValue},
    {"ShowTicker", "1", &SystemOptionsFormControls::ShowTicker},
    {"TopScreenPosition", "0", &SystemOptionsFormControls::TopScreenPosition},
    {"BottomScreenPosition", "1", &SystemOptionsFormControls::BottomScreenPosition},
    {"AlwaysOnTop", "0", &SystemOptionsFormControls::AlwaysOnTop},
    {"ShowCurrentConditions", "1", &SystemOptionsFormControls::ShowCurrentConditions},
    {"ShowHourlyForecast", "1", &SystemOptionsFormControls::ShowHourlyForecast},
    {"Show3DayForecast", "1", &SystemOptionsFormControls::Show3DayForecast},
    {"ShowAlmanac", "1", &SystemOptionsFormControls::ShowAlmanac},
};

// An option that is a list; the index stored is repaired where an unselected list left "-1".
struct ListRow {
  const char* name;
  const char* fallback;
  const char* repaired;
  ListControl SystemOptionsFormControls::*list;
};
const ListRow kLists[] = {
    {"NWSUpdate", "3", "3", &SystemOptionsFormControls::NWSIndexMax},
    {"CurrentConditionsUpdate", "2", "1", &SystemOptionsFormControls::CurrentConditionsIndexMax},
    {"ForecastUpdate", "11", "11", &SystemOptionsFormControls::ForecastIndexMax},
    {"NexradUpdate", "0", "0", &SystemOptionsFormControls::NexradIndexMax},
};

void Put(const CheckRow& row) {
  WriteSetting(kOptionsKey, row.name, (SystemOptionsForm.*row.box).Checked ? "1" : "0");
}

bool IsOn(const std::string& text) { return LenientNumber(text) == 1; }

std::string Repaired(const std::string& text, const char* repaired) { return text == "-1" ? repaired : text; }

}  // namespace

int LastLocation() { return IndexOf(Settings.LocationIndexMax, "LocationIndexMax"); }

int SelectedLocation() { return IndexOf(Settings.Location, "Location"); }

void LoadSettings() {
  Guarded([] {
    const std::string top = ReadSetting(kSettingsKey, "Top", "");
    const std::string left = ReadSetting(kSettingsKey, "Left", "");
    PlaceWindow(top, left);
    Load(HostAddress.Hosts, "Hosts", "");
    Load(Settings.Location, "Location", "");
    Load(Settings.LocationIndexMax, "LocationIndexMax", "");
    Load(Settings.TrayLocationIndex, "TrayLocationIndex", "0");
    Load(Settings.GMTStartTime, "GMTStartTime", Settings.GMTStartTime);
    Load(Settings.ModelLocal, "ModelLocal", Settings.ModelLocal);
    Load(Settings.ModelServer, "ModelServer", Settings.ModelServer);
    Load(Settings.StartHourIndex, "StartHourIndex", "0");
    Load(Settings.StopHourIndex, "StopHourIndex", "59");
  });
  Settings.Location = NumberOrEmpty(Settings.Location);
  Settings.LocationIndexMax = NumberOrEmpty(Settings.LocationIndexMax);
}

void SaveSettings() {
  Guarded([] {
    Save("Top", NumberText(MainForm.Top));
    Save("Left", NumberText(MainForm.Left));
    Save("Hosts", HostAddress.Hosts);
    Save("Location", NumberOrEmpty(Settings.Location));
    Save("LocationIndexMax", NumberOrEmpty(Settings.LocationIndexMax));
    PutTrayLocation();
    Save("GMTStartTime", Settings.GMTStartTime);
    Save("ModelLocal", Settings.ModelLocal);
    Save("ModelServer", Settings.ModelServer);
    Save("StartHourIndex", Settings.StartHourIndex);
    Save("StopHourIndex", Settings.StopHourIndex);
    SyncSaves();
  });
}

void SaveTrayLocation() {
  Guarded([] {
    PutTrayLocation();
    SyncSaves();
  });
}

void LoadOptions() {
  Guarded([] {
    const auto read = [](const char* name, const char* fallback) {
      return ReadSetting(kOptionsKey, name, fallback);
    };
    const std::string address = read("EmailAddress", "");
    std::string checks[std::size(kCheckBoxes)];
    std::string lists[std::size(kLists)];
    for (size_t i = 0; i < std::size(kCheckBoxes); ++i)
      checks[i] = read(kCheckBoxes[i].name, kCheckBoxes[i].fallback);
    for (size_t i = 0; i < std::size(kLists); ++i) lists[i] = read(kLists[i].name, kLists[i].fallback);
    const std::string auto_connect = read("AutoConnect", "1");
    const std::string legend_flag = read("LegendFlag", "0");

    SystemOptionsForm.Email1Value.Text = address;
    SystemOptionsForm.Email2Value.Text = address;
    for (size_t i = 0; i < std::size(kCheckBoxes); ++i) {
      (SystemOptionsForm.*kCheckBoxes[i].box).Checked = IsOn(checks[i]);
    }
    Transport.AutoConnect = Repaired(auto_connect, "1");
    Settings.LegendFlag = WholeNumber(Repaired(legend_flag, "0"));
    for (size_t i = 0; i < std::size(kLists); ++i) {
      (SystemOptionsForm.*kLists[i].list).Select(WholeNumber(Repaired(lists[i], kLists[i].repaired)));
    }
    SystemOptionsForm.AutoConnect.Checked = IsOn(Transport.AutoConnect);
  });
}

void SaveOptions() {
  Guarded([] {
    const auto write = [](const char* name, const std::string& text) {
      WriteSetting(kOptionsKey, name, text);
    };
    write("EmailAddress", SystemOptionsForm.Email1Value.Text);
    for (const CheckRow& row : kCheckBoxes) Put(row);
    for (const ListRow& row : kLists) {
      write(row.name, NumberText((SystemOptionsForm.*row.list).ListIndex()));
    }
    write("AutoConnect", SystemOptionsForm.AutoConnect.Checked ? "1" : "0");
    write("LegendFlag", NumberText(Settings.LegendFlag));
    SyncSaves();
  });
}

void SaveOption(const CheckBox& box) {
  Guarded([&] {
    for (const CheckRow& row : kCheckBoxes) {
      if (&(SystemOptionsForm.*row.box) == &box) Put(row);
    }
    SyncSaves();
  });
}

}  // namespace skyloft
