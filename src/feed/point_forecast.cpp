#include "feed/point_forecast.h"

#include <utility>

#include "feed/hosts.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"

namespace skyloft {
namespace {

// An hour as queries write it: "3%2F7%2F2003+2%3A00%3A00+PM".
std::string HourQuery(Date time, MidnightHour midnight) {
  const DateParts parts = PartsOf(time);
  const int hour = parts.hour == 0   ? static_cast<int>(midnight)
                   : parts.hour > 12 ? parts.hour - 12
                                     : parts.hour;
  return std::to_string(parts.month) + "%2F" + std::to_string(parts.day) + "%2F" +
         std::to_string(parts.year) + "+" + std::to_string(hour) + "%3A00%3A00+" + Format(time, "AM/PM");
}

}  // namespace

PointForecast QueryPointForecast(const std::string& latitude, const std::string& longitude, Date time,
                                 MidnightHour midnight) {
  const std::string hour = HourQuery(time, midnight);
  PointForecast out;
  QueryServer(HostTable.forecastserver + "forecast.asp?lat=" + latitude + "&long=" + longitude +
                  "&st=" + hour + "&et=" + hour + "&t=xml",
              [&](const XmlDocument& reply) {
                const std::pair<const char*, std::string*> tags[] = {
                    {"city_state", &out.city_state},
                    {"Ut", &out.Ut},
                    {"Lt", &out.Lt},
                    {"Desc", &out.Desc},
                    {"Ic", &out.Ic},
                    {"Tf", &out.Tf},
                    {"Df", &out.Df},
                    {"Rh", &out.Rh},
                    {"At", &out.At},
                    {"Wd", &out.Wd},
                    {"Ws", &out.Ws},
                    {"Rn", &out.Rn},
                    {"Sn", &out.Sn},
                };
                int count = 0;
                for (const auto& [tag, field] : tags) ReadXmlValue(reply, tag, *field, count);
              });
  return out;
}

}  // namespace skyloft
