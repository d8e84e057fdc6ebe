// The pages that the catalogue's addresses lead to: plain documents without scripts.
#include <array>

#include "feedserver/replies.h"

namespace skyloft::feed {
namespace {

struct Page {
  std::string_view path, title, text;
};

constexpr auto kPages = std::to_array<Page>({
    {"/help/", "Help", R"(
<h2>Finding your way</h2>
<p>Choose a category, then a product, then a time. The picture of that time appears at once; the buttons below it
play a series, step through it and zoom. <b>Local</b> shows the region around your location, <b>National</b> the
whole country.</p>
<h2>The weather here is made up</h2>
<p>Everything that this server tells is simulated. Do not plan a journey or a harvest by it.</p>
)"},
    {"/support/", "Technical Support", R"(
<h2>The picture does not change</h2>
<p>A picture is kept for six hours. If a newer one cannot be fetched, the last one stays in sight. Look whether your
computer is connected, then choose the product again.</p>
<h2>The radar is empty</h2>
<p>A radar sees what falls within about 140 miles of its site. On a fair day that is nothing at all.</p>
<h2>What the numbers mean</h2>
<table cellpadding="5" cellspacing="0" border="1" bordercolor="#b8c4d6">
<tr bgcolor="#e4ebf5"><td><b>Unit</b></td><td><b>Used for</b></td></tr>
<tr><td>&deg;F</td><td>temperature, dew point, wind chill and heat index</td></tr>
<tr><td>mph</td><td>speed of the wind; its direction is where it comes from</td></tr>
<tr><td>in</td><td>rain, depth of snow, and pressure in inches of mercury</td></tr>
<tr><td>dBZ</td><td>strength of a radar echo: drizzle near 15, a downpour above 45</td></tr>
</table>
<p>More under <a href="http://www.skyloft.example/help/">Help</a>.</p>
)"},
    {"/newsletter/", "Monthly Newsletter", R"(
<h2>How to read a surface analysis</h2>
<p>The lines join places of equal pressure. The closer they lie, the stronger the wind, which blows along them with the
low on its left and a little inward. Where the lines bend sharply around an <b>L</b>, expect a change of weather.</p>
<h2>Wind chill</h2>
<p>At 20 degrees with a wind of 30 miles an hour the skin loses heat as it would at 1 degree in still air. The page of
the current conditions tells the number whenever it is lower than the temperature.</p>
<h2>A word for travellers</h2>
<p>The map <b>RouteScope by Road</b> colours the interstate highways by the worst that the twelve hours after your
departure may bring. Choose another departure time and compare.</p>
<p><i>All weather told by this server is simulated.</i></p>
)"},
    {"/share/", "Share Skyloft", R"(
<h2>Tell a friend</h2>
<p>Skyloft is free software. Whoever looks at the sky before going out will like it: hourly and weekly planners,
radar of the last three hours, maps of the days to come, and warnings of your own.</p>
<p>A <a href="mailto:?subject=Skyloft&amp;body=Have%20a%20look%20at%20Skyloft%2C%20a%20desktop%20weather%20station.">letter</a>
is quickly written.</p>
)"},
});

}  // namespace

std::optional<Reply> PageReply(std::string_view path) {
  for (const Page& page : kPages) {
    if (page.path != path) continue;
    std::string body = R"(<!DOCTYPE html>
<html><head><meta http-equiv="Content-Type" content="text/html; charset=windows-1252">
<title>)";
    body.append(page.title).append(R"(</title>
<style>
body { margin: 0; font-family: Tahoma, Verdana, sans-serif; font-size: 13px; color: #20242c; background: #f6f8fb; }
h1 { margin: 0; padding: 14px 20px; font-size: 20px; color: #ffffff; background: #182848; }
h2 { margin: 16px 0 4px 0; font-size: 15px; color: #24427c; }
p { margin: 4px 0 8px 0; line-height: 1.4; }
td { font-size: 13px; }
.text { padding: 4px 20px 20px 20px; }
</style></head>
<body><h1>)");
    body.append(page.title)
        .append("</h1><div class=\"text\">")
        .append(page.text)
        .append("</div></body></html>\n");
    return Reply{.type = "text/html", .body = std::move(body)};
  }
  return {};
}

}  // namespace skyloft::feed
