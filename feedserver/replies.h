// The replies behind Answer, one procedure for each kind.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "feedserver/answer.h"
#include "feedserver/query.h"

namespace skyloft::feed {

// Meta data, current, historical, hourly or extended, as the query asks; nothing for a query of another kind.
std::optional<std::string> ForecastXml(const Query& query, Date now, std::uint64_t seed);
// Everything about one place; a document without tags when the place is unknown.
std::string LocationXml(const Query& query, Date now);
std::string HostsXml(const World& world);
// The bulletins in force, in their order, each for every place of the query that it is for.
std::string BulletinsXml(const Query& query, const std::vector<Bulletin>& bulletins, Date now);
// The banners and messages, with times around the present day.
std::string MessagesXml(Date now);
// The products of the catalogue of a model run ("00" to "18"), and the edges of their maps.
std::string ProductsXml(std::string_view run_hour);
std::string SectorsXml();
// The page of an address; nothing for another address.
std::optional<Reply> PageReply(std::string_view path);
// The radar picture, map or legend of an address; nothing for another address.
std::optional<Reply> PictureReply(std::string_view path, Date now, const World& world);

}  // namespace skyloft::feed
