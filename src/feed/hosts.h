// The host table: which servers to use and which version of the program is current. Read before anything else
// at start-up and again when the model run on the server changes; the program's only test of connectivity.
#pragma once

#include <string>

namespace skyloft {

// Bases that query strings are appended to directly; empty until read. A later read keeps the field of a tag
// that the document does not have.
struct HostTableFields {
  std::string fileserver;       // legends
  std::string productserver;    // catalogues
  std::string messageserver;    // message feed
  std::string messageinterval;  // seconds between two reads of the message feed
  std::string forecastserver;   // forecast.asp, bulletins.asp, location_setup.asp
  std::string imageserver;      // product pictures
  std::string updateserver;     // whole address of the installer
  std::string helpserver;       // these three are read, kept and not used
  std::string supportserver;
  std::string shareserver;
};
extern HostTableFields HostTable;

struct HostsState {
  std::string WebHost;  // host of the table, with a port if need be; set once when the program starts
  std::string Hosts;    // address of the table; stored with the settings, never taken from there
};
extern HostsState HostAddress;

// Reads the table and looks for an update. Mode 0 at start-up: without a version in the answer a message is
// shown and the process ends. Mode 1 from the refresh cycle: a failure changes nothing.
void CheckHosts(int mode);
void ReadHostTable(int mode, const std::string& address, std::string& server_version);
// Any version other than our own, lower ones too, is an update: the user accepts it (it is fetched and
// started) or not; the process ends in both cases.
void CheckUpdate(int mode, const std::string& server_version, const std::string& own_version);

// Attaches the progress of the update's download to the splash.
void ConnectHosts();

}  // namespace skyloft
