// The thin procedures through which everything comes from the servers. A busy control refuses a second call,
// nothing is queued and nothing tried again; on any failure the out text and the file stay as they were.
#pragma once

#include <functional>
#include <string>

#include "platform/xml.h"

namespace skyloft {

// "1" dials without asking. Loaded with the options, and set by GetXML.
struct TransportState {
  std::string AutoConnect = "1";
};
extern TransportState Transport;

// A text through the control Http, a picture into a file through HttpData, a radar frame through HttpRadar.
void GetData(const std::string& url, std::string& text);
void GetImage(const std::string& url, const std::string& path);
void GetRadar(const std::string& url, const std::string& path);
// As GetData, for the host table. It first reads AutoConnect from the key of the settings, where nothing
// writes it, not from that of the options: so each call sets it to "1" until the options are next loaded.
// This is meant.
void GetXML(const std::string& url, std::string& text);

// Dials as AutoConnect tells.
void DialConnection();

// The frame of every query: skipped while Http is busy; otherwise fetches the reply (an empty document on any
// failure) and hands it to `read`.
void QueryServer(const std::string& url, const std::function<void(const XmlDocument&)>& read);

// Attaches the download percentage of HttpData to ProductTitle.
void ConnectTransport();

}  // namespace skyloft
