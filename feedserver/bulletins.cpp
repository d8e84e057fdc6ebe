#include "feedserver/bulletins.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "base/guard.h"
#include "base/text.h"
#include "base/values.h"
#include "feedserver/places.h"
#include "feedserver/query.h"
#include "feedserver/replies.h"
#include "feedserver/rows.h"
#include "feedserver/xml.h"

namespace skyloft::feed {
namespace {

constexpr std::string_view kMark = "SIMULATED. ";
constexpr const char* kGap = "     ";  // clients run texts together without anything between them

// What stands before the next `end`, trimmed; takes it and the end away. The rest of the text when there is
// none.
std::string_view Cut(std::string_view& text, char end) {
  const std::string_view piece = text.substr(0, text.find(end));
  text.remove_prefix(std::min(piece.size() + 1, text.size()));
  return TrimText(piece);
}

Date ReadMoment(std::string_view text, Date now) {
  if (!text.starts_with('+') && !text.starts_with('-')) return ReadDate(text);
  unsigned minutes = 0;  // a second sign is no number
  const auto read = std::from_chars(text.data() + 1, text.data() + text.size(), minutes);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size()) throw RuntimeError("no minutes");
  return DateAdd(DateUnit::Minutes, text.front() == '-' ? -std::int64_t{minutes} : minutes, now);
}

std::string ReadText(std::string_view written) {
  std::string text = written.starts_with(kMark) ? "" : std::string(kMark);
  for (std::size_t i = 0; i < written.size(); ++i) {
    const std::string_view pair = written.substr(i, 2);
    const bool is_escape = pair == "\\n" || pair == "\\\\";
    text += pair == "\\n" ? "\r\n" : std::string(1, written[i]);
    if (is_escape) ++i;
  }
  return text;
}

Bulletin ReadBulletin(std::string_view line, Date now) {
  Bulletin bulletin;
  if (std::count(line.begin(), line.end(), '|') < 4) throw RuntimeError("a bulletin has five parts");
  for (std::string_view places = Cut(line, '|'); !places.empty();)
    bulletin.places.emplace_back(Cut(places, ','));
  bulletin.type = Cut(line, '|');
  bulletin.issued = ReadMoment(Cut(line, '|'), now);
  bulletin.expires = ReadMoment(Cut(line, '|'), now);
  bulletin.text = ReadText(TrimText(line));
  if (bulletin.places.empty() || bulletin.type.size() != 3) throw RuntimeError("no place or no type");
  return bulletin;
}

std::vector<std::string_view> Distinct(const std::vector<std::string_view>& names) {
  std::vector<std::string_view> distinct;
  for (const std::string_view name : names) {
    if (std::find(distinct.begin(), distinct.end(), name) == distinct.end()) distinct.push_back(name);
  }
  return distinct;
}

bool IsFor(const Bulletin& bulletin, std::string_view postal_code) {
  const std::optional<Place> place = FindPlace(postal_code);
  const std::string county =
      place ? LowerCase(std::string(place->state) + ' ' + std::string(place->county)) : "";
  return std::any_of(bulletin.places.begin(), bulletin.places.end(), [&](const std::string& name) {
    return name == "*" || name == postal_code || (place && LowerCase(name) == county);
  });
}

}  // namespace

std::vector<Bulletin> ReadBulletins(std::string_view file, Date now) {
  const std::string converted = IsUtf8(file) ? FromUtf8(file) : std::string(file);
  std::vector<Bulletin> bulletins;
  std::string_view rest = converted;
  for (int number = 1; !rest.empty(); ++number) {
    std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (TrimText(line).empty() || line.starts_with('#')) continue;
    if (!Guarded([&] { bulletins.push_back(ReadBulletin(line, now)); }))
      throw RuntimeError("line " + std::to_string(number) + " is no bulletin");
  }
  return bulletins;
}

std::string BulletinsXml(const Query& query, const std::vector<Bulletin>& bulletins, Date now) {
  XmlDocument xml("bulletins");
  for (const Bulletin& bulletin : bulletins) {
    if (now < bulletin.issued || bulletin.expires < now) continue;
    for (const std::string_view postal_code : Distinct(query.All("pc"))) {
      if (!IsFor(bulletin, postal_code)) continue;
      xml.Add("pc", postal_code);
      xml.Add("Type", bulletin.type);
      xml.Add("IT", Stamp(bulletin.issued));
      xml.Add("ET", Stamp(bulletin.expires));
      xml.Add("Text", bulletin.text + kGap);
    }
  }
  return std::move(xml).Finish();
}

}  // namespace skyloft::feed
