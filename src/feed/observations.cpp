#include "feed/observations.h"

#include <algorithm>
#include <deque>
#include <vector>

#include "base/values.h"
#include "feed/hosts.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"
#include "settings/location_profiles.h"
#include "settings/settings.h"
#include "weather/sky.h"

namespace skyloft {

ObservationTables ObservationRecord;
ObservationState Observations;

namespace {

std::string JoinZipCodes(const std::vector<int>& slots) {
  std::string selection;
  for (int slot : slots) {
    selection += (selection.empty() ? "pc=" : "&pc=") + LocationProfile[ProfileRow::ZipCode][slot];
  }
  return selection;
}

std::string QueryUrl(const std::string& selection, const char* kind) {
  return HostTable.forecastserver + "forecast.asp?" + selection + kind;
}

std::vector<int> ChangedSlots() {
  std::vector<int> changed;
  for (int slot = 0; slot <= LastLocation(); ++slot) {
    if (ObservationRecord.ObsStamp[slot] != ObservationRecord.ObsStampServer[slot]) changed.push_back(slot);
  }
  return changed;
}

enum class Reading { Odd, Plain, Dropped, Icon, Wind };

struct FieldRow {
  const char* tag;
  Reading reading;
  ObservationTables::Cells ObservationTables::*cells;
};

// In reading order. SkyID is read like the others and then dropped: the sky that is shown comes from Desc and
// Ic.
const FieldRow kFields[] = {
    {"City", Reading::Odd, &ObservationTables::City},
    {"State", Reading::Odd, &ObservationTables::State},
    {"Lt", Reading::Plain, &ObservationTables::Lt},
    {"SkyID", Reading::Dropped, nullptr},
    {"Desc", Reading::Plain, &ObservationTables::Desc},
    {"Ic", Reading::Icon, &ObservationTables::Ic},
    {"Tf", Reading::Plain, &ObservationTables::Tf},
    {"At", Reading::Plain, &ObservationTables::At},
    {"Df", Reading::Plain, &ObservationTables::Df},
    {"Rh", Reading::Plain, &ObservationTables::Rh},
    {"Wd", Reading::Wind, &ObservationTables::Wd},
    {"Ws", Reading::Plain, &ObservationTables::Ws},
    {"Vi", Reading::Plain, &ObservationTables::Vi},
    {"Avg_H", Reading::Plain, &ObservationTables::Avg_H},
    {"Avg_L", Reading::Plain, &ObservationTables::Avg_L},
    {"Slp", Reading::Plain, &ObservationTables::Slp},
};

std::string FieldText(Reading reading, const std::string& text) {
  if (reading == Reading::Icon) return IconPath(text);
  if (reading == Reading::Wind) return GetWindDirection(LenientNumber(text));
  return text;
}

void StoreReadings(const XmlDocument& reply, const std::vector<int>& slots) {
  const int locations = static_cast<int>(slots.size()) - 1;
  int count = 0;
  int items = 0;
  std::deque<TextList> lists;
  for (const FieldRow& field : kFields) {
    TextList& list = lists.emplace_back(ObservationTables::Cells::Size());
    if (field.reading == Reading::Odd) {
      ReadXmlOddList(reply, field.tag, list, locations, count, items);
    } else {
      ReadXmlList(reply, field.tag, list, count);
    }
  }
  for (int j = 0; j <= locations; ++j) {
    const int slot = slots[static_cast<size_t>(j)];
    size_t list = 0;
    for (const FieldRow& field : kFields) {
      const TextList& texts = lists[list++];
      if (field.reading == Reading::Dropped) continue;
      (ObservationRecord.*field.cells)[slot] = FieldText(field.reading, texts[j]);
    }
    // Last of all, so that a failure before it leaves the slot to be fetched again.
    ObservationRecord.ObsStamp[slot] = ObservationRecord.ObsStampServer[slot];
  }
}

}  // namespace

std::string ZipCodeSelection(int first, int last) {
  std::vector<int> slots;
  for (int slot = first; slot <= last; ++slot) slots.push_back(slot);
  return JoinZipCodes(slots);
}

void GetMetaData() {
  Guarded([] {
    QueryServer(QueryUrl(ZipCodeSelection(0, LastLocation()), "&t=xml&d=meta"), [](const XmlDocument& reply) {
      int count = -1;
      TextList stamps(ObservationTables::Cells::Size());
      ReadXmlList(reply, "Obs_TS_UTC", stamps, count);
      for (int i = 0; i <= count; ++i) ObservationRecord.ObsStampServer[i] = stamps[i];
      ReadXmlValue(reply, "Model_TS_UTC", Settings.ModelServer, count);
      ReadXmlValue(reply, "Model_TS_UTC_Trip", Observations.ModelServerTrip, count);
    });
  });
}

void GetCurrentData() {
  Guarded([] {
    const std::vector<int> slots = ChangedSlots();
    if (slots.empty()) return;
    QueryServer(QueryUrl(JoinZipCodes(slots), "&t=xml&d=current"),
                [&](const XmlDocument& reply) { StoreReadings(reply, slots); });
  });
}

void QueryHistoricalData(HistoricalReadings& out) {
  QueryServer(QueryUrl(JoinZipCodes({SelectedLocation()}), "&t=xml&d=currenthistorical"),
              [&](const XmlDocument& reply) {
                const std::pair<const char*, TextList*> tags[] = {
                    {"Lt", &out.Lt}, {"Ic", &out.Ic}, {"Desc", &out.Desc}, {"Tf", &out.Tf}, {"Df", &out.Df},
                    {"Rh", &out.Rh}, {"Wd", &out.Wd}, {"Ws", &out.Ws},     {"Vi", &out.Vi},
                };
                // As many rows as the fullest tag has: so a cell lacking in another is met when it is read.
                for (const auto& [tag, list] : tags) {
                  int count = -1;
                  ReadXmlList(reply, tag, *list, count);
                  out.rows = std::clamp(count + 1, out.rows, HistoricalReadings::kRows);
                }
              });
}

void GetCurrentConditionsRT(const std::string& longitude, const std::string& latitude, PointConditions& out) {
  Guarded([&] {
    const std::string selection = "lat=" + latitude + "&long=" + longitude;
    QueryServer(QueryUrl(selection, "&t=xml&d=current"), [&](const XmlDocument& reply) {
      int count = 0;
      ReadXmlSecondValue(reply, "City", out.City, count);
      ReadXmlSecondValue(reply, "State", out.State, count);
      const std::pair<const char*, std::string*> tags[] = {
          {"Lt", &out.Lt}, {"SkyID", &out.SkyID}, {"Tf", &out.Tf}, {"At", &out.At}, {"Df", &out.Df},
          {"Rh", &out.Rh}, {"Wd", &out.Wd},       {"Ws", &out.Ws}, {"Vi", &out.Vi},
      };
      for (const auto& [tag, field] : tags) ReadXmlValue(reply, tag, *field, count);
      int code = 0;
      int found = 0;
      SkyCondition(0, 0, kSkyRows - 1, WholeNumber(out.SkyID), "", "", code, out.Desc, out.Ic, found);
    });
  });
}

}  // namespace skyloft
