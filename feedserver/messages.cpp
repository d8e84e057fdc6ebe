// The messages of the server: banners for five places of the program's windows, and lines for its strip.
#include <array>

#include "feedserver/replies.h"
#include "feedserver/rows.h"
#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

// The sets by their numbers, with the smallest place that a banner of the set is shown in, in pixels.
enum Set {
  kStation = 0,  // 120 by 26; 400 by 40 in the options
  kTip = 1,      // 236 by 26
  kStrip = 2,    // plain text on one line
  kBar = 3,      // the width of the screen by 35
  kCorner = 4    // 90 by 35, at the bar's left end
};

// Times are hours after the last midnight in GMT.
struct Hours {
  int begin, end;
};
constexpr Hours kAlways{-24, 48}, kMorning{10, 17}, kEvening{17, 24};

struct Message {
  Set set;
  Hours hours;
  int interval;                    // seconds
  std::string_view first, second;  // the lines of a banner, or the text and the priority of a strip
};

constexpr auto kMessages = std::to_array<Message>({
    {kStation, kAlways, 120, "Simulated weather", "not for decisions"},
    {kStation, kAlways, 120, "Nothing here is real", "all weather is simulated"},
    {kTip, kMorning, 180, "The day ahead", "The Hourly Planner tells it hour by hour."},
    {kTip, kEvening, 180, "The days to come", "The Weekly Planner has them all."},
    {kTip, kAlways, 180, "Travelling?", "Choose another of your towns under Location."},
    {kTip, kAlways, 180, "Rain on its way?", "Choose NEXRAD Radar, then press play."},
    {kTip, kAlways, 180, "Look closer", "The magnifier zooms; the frame cuts out a part."},
    {kStrip, kAlways, 900, "Welcome to Skyloft. The weather that this server tells is simulated.", "1"},
    {kStrip, kAlways, 900,
     "Up to five towns can be watched at once. The weather of all of them is simulated here.", "1"},
    {kStrip, kAlways, 300,
     "SIMULATED. In a tornado, go to a small room without windows on the lowest floor and cover your head.",
     "T"},
    {kStrip, kAlways, 300,
     "SIMULATED. In a thunderstorm, stay indoors, keep away from windows, and wait half an hour after the "
     "last thunder.",
     "S"},
    {kStrip, kAlways, 300,
     "SIMULATED. In a flash flood, go to higher ground at once. Never walk or drive through moving water.",
     "F"},
    {kBar, kAlways, 60, "SIMULATED WEATHER",
     "Nothing on this bar is real: skyloft-feed makes it all up. Do not plan by it."},
    {kBar, kAlways, 60, "SKYLOFT", "This bar shows all of your towns in turn. Their weather is simulated."},
    {kCorner, kAlways, 120, "SKYLOFT", "weather station"},
    {kCorner, kAlways, 120, "SIMULATED", "weather"},
});

// Of a set's banners: where the lines stand, their colours and sizes in pixels.
struct Look {
  std::string_view align, background, first_color, second_color;
  int height, first_size, second_size;
  std::string_view between;
};

constexpr Look LookOf(Set set) {
  switch (set) {
    case kStation: return {"center", "#14264D", "#FFCF5A", "#A9C3EE", 26, 10, 10, "<br>"};
    case kTip: return {"left", "#14264D", "#FFCF5A", "#D5E2F8", 26, 10, 10, "<br>"};
    case kBar: return {"left", "#000000", "#FFCF5A", "#FFFFFF", 35, 13, 12, " &nbsp; "};
    default: return {"center", "#0B1836", "#FFFFFF", "#FFCF5A", 35, 12, 10, "<br>"};
  }
}

// In front of lines that begin at the left.
constexpr std::string_view kEdge = "<td width='2' bgcolor='#3D7BFF'></td><td width='6'></td>";

void AppendLine(std::string& page, std::string_view color, int size, std::string_view text) {
  page.append("<span style='color:").append(color).append("; font-size:").append(std::to_string(size));
  page.append("px'>").append(text).append("</span>");
}

std::string Banner(const Message& message) {
  const Look look = LookOf(message.set);
  std::string page =
      "<html><head><title>Skyloft</title><style>body { overflow:hidden; } "
      "td { font-family: Tahoma; line-height: 12px; }</style></head><body bgcolor='";
  page.append(look.background).append("' topmargin='0' leftmargin='0'>");
  page.append("<table border='0' width='100%' cellspacing='0' cellpadding='0' height='");
  page.append(std::to_string(look.height))
      .append("'><tr>")
      .append(look.align == "left" ? kEdge : "")
      .append("<td valign='middle' align='");
  page.append(look.align).append("'><b>");
  AppendLine(page, look.first_color, look.first_size, message.first);
  page.append("</b>").append(look.between);
  AppendLine(page, look.second_color, look.second_size, message.second);
  return page + "</td></tr></table></body></html>";
}

}  // namespace

std::string MessagesXml(Date now) {
  const DateParts today = PartsOf(now);
  const Date midnight = MakeDate(today.year, today.month, today.day);
  XmlDocument xml("messages");
  for (const Message& message : kMessages) {
    const bool is_strip = message.set == kStrip;
    xml.Add("type", std::to_string(message.set));
    xml.Add("starttime", Stamp(DateAdd(DateUnit::Hours, message.hours.begin, midnight)));
    xml.Add("endtime", Stamp(DateAdd(DateUnit::Hours, message.hours.end, midnight)));
    xml.Add("interval", std::to_string(message.interval));
    xml.Add("messagetext", is_strip ? std::string(message.first) : Banner(message));
    xml.Add("priority", is_strip ? message.second : "1");
  }
  return std::move(xml).Finish();
}

}  // namespace skyloft::feed
