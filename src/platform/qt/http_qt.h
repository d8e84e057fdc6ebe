// What the real fetches offer to the other real parts.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace skyloft {

// Connects every name under skyloft.example to this server, "HOST:PORT" or "HOST".
void SetExampleServer(const std::string& server);

// Fetches in the background, for pages: `done` is called later with the reply, "" for a failure.
void FetchLater(const std::string& url, std::function<void(std::string)> done);

// How many fetches are under way.
int FetchesUnderWay();

// The address that goes out for one of the program's: "http://" in front where no scheme stands, "\" as "/",
// blanks after the host as "%20", nothing else escaped. Nothing for an address with control characters, with
// another scheme than http and https, or without a host.
std::optional<std::string> FetchAddress(std::string_view url);

// Whether a redirect may be followed: to the same scheme, or to https.
bool MayRedirect(std::string_view from, std::string_view to);

}  // namespace skyloft
