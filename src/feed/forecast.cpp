#include "feed/forecast.h"

#include <map>
#include <string_view>
#include <vector>

#include "base/dates.h"
#include "base/values.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"
#include "settings/settings.h"

namespace skyloft {

Grid<ForecastHourFields, 5, kForecastHours> ForecastHour;
Grid<ForecastDayFields, 5, kForecastDays> ForecastDay;

namespace {

using GridReader = void (*)(const XmlDocument&, std::string_view, QueryGrid&, int, int&, int&);

// One tag of a reply, how it is read, and the field that it fills.
template <class Fields>
struct TagRow {
  const char* tag;
  GridReader read;
  std::string Fields::*field;
};

// In reading order; the last one tells the number of rows.
constexpr TagRow<ForecastHourFields> kHourTags[] = {
    {"Ut", ReadXmlGrid, &ForecastHourFields::Ut},     {"Lt", ReadXmlGrid, &ForecastHourFields::Lt},
    {"Desc", ReadXmlGrid, &ForecastHourFields::Desc}, {"Ic", ReadXmlIconGrid, &ForecastHourFields::Ic},
    {"Tf", ReadXmlGrid, &ForecastHourFields::Tf},     {"Df", ReadXmlGrid, &ForecastHourFields::Df},
    {"Rh", ReadXmlGrid, &ForecastHourFields::Rh},     {"At", ReadXmlGrid, &ForecastHourFields::At},
    {"Wd", ReadXmlWindGrid, &ForecastHourFields::Wd}, {"Ws", ReadXmlGrid, &ForecastHourFields::Ws},
    {"Rn", ReadXmlGrid, &ForecastHourFields::Rn},     {"Sn", ReadXmlGrid, &ForecastHourFields::Sn},
};
constexpr TagRow<ForecastDayFields> kDayTags[] = {
    {"Ut", ReadXmlGrid, &ForecastDayFields::Ut},     {"Desc", ReadXmlGrid, &ForecastDayFields::Desc},
    {"Ic", ReadXmlIconGrid, &ForecastDayFields::Ic}, {"Th", ReadXmlGrid, &ForecastDayFields::Th},
    {"Tl", ReadXmlGrid, &ForecastDayFields::Tl},     {"Rn", ReadXmlGrid, &ForecastDayFields::Rn},
    {"Sn", ReadXmlGrid, &ForecastDayFields::Sn},     {"Wd", ReadXmlWindGrid, &ForecastDayFields::Wd},
    {"Ws", ReadXmlGrid, &ForecastDayFields::Ws},
};

// All that the servers have: a range far wider than any forecast.
constexpr const char* kHourlyKind = "&st=1%2F1%2F2000+0%3A00%3A00+AM&et=12%2F31%2F2100+12%3A00%3A00+AM&t=xml";
constexpr const char* kExtendedKind = "&t=xml&fcsttype=extended";

// Cells by tag, location and row. Both queries read into the same ones.
using LocalTables = std::map<std::string_view, QueryGrid>;

// Reads the reply's tags for `locations` + 1 locations; returns the number of rows of each.
template <class Tags>
int ReadTags(const XmlDocument& reply, const Tags& tags, int locations, LocalTables& tables) {
  int count = -1;
  int last_row = -1;
  for (const auto& row : tags) row.read(reply, row.tag, tables[row.tag], locations, count, last_row);
  return last_row + 1;
}

// Fetches the locations `first` to `last` and copies their rows into the table.
template <class Tags, class Rows>
void LoadTable(const char* kind, const Tags& tags, int first, int last, LocalTables& cells, Rows& table) {
  int rows = 0;
  QueryServer(HostTable.forecastserver + "forecast.asp?" + ZipCodeSelection(first, last) + kind,
              [&](const XmlDocument& reply) { rows = ReadTags(reply, tags, last - first, cells); });
  if (rows <= 0) throw RuntimeError("no forecast came");
  std::vector<const QueryGrid*> columns;
  for (const auto& row : tags) columns.push_back(&cells[row.tag]);
  for (int slot = first; slot <= last; ++slot) {
    for (int item = 0; item < rows; ++item) {
      auto& fields = table[slot][item];
      auto column = columns.begin();
      for (const auto& row : tags) fields.*(row.field) = (**column++)[slot - first][item];
    }
  }
}

void SetStartAndStop() {
  const int start = PartsOf(ReadDate(ForecastHour[0][0].Ut)).hour;
  const bool late = start == 7 || start == 19;
  Settings.GMTStartTime = NumberText(start);
  Settings.StartHourIndex = late ? "6" : "0";
  Settings.StopHourIndex = late ? "65" : "59";
}

}  // namespace

void GetForecastData(int mode) {
  Guarded([&] {
    const bool same_run = Settings.ModelLocal == Settings.ModelServer;
    if (same_run && mode != 1) return;
    const int last = LastLocation();
    const int first = same_run ? last : 0;
    LocalTables cells;
    LoadTable(kHourlyKind, kHourTags, first, last, cells, ForecastHour);
    LoadTable(kExtendedKind, kDayTags, first, last, cells, ForecastDay);
    SetStartAndStop();
    Settings.ModelLocal = Settings.ModelServer;
  });
}

}  // namespace skyloft
