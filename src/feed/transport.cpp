#include "feed/transport.h"

#include "forms/main_form.h"
#include "platform/http.h"
#include "settings/registry.h"
#include "settings/settings.h"

namespace skyloft {

TransportState Transport;

void DialConnection() { DialInternet(Transport.AutoConnect == "1" ? 2 : 1); }

namespace {

// Readies an idle control for a fetch; false when it is busy.
bool Prepare(HttpControl& control, const std::string& url) {
  if (!control.Idle()) return false;
  DialConnection();
  control.Url = url;
  return true;
}

void GetFile(HttpControl& control, const std::string& url, const std::string& path) {
  Guarded([&] {
    if (Prepare(control, url)) HttpGetFile(control, path);
  });
}

}  // namespace

void GetData(const std::string& url, std::string& text) {
  Guarded([&] {
    if (Prepare(MainForm.Http, url)) HttpGet(MainForm.Http, text);
  });
}

void GetImage(const std::string& url, const std::string& path) { GetFile(MainForm.HttpData, url, path); }

void GetRadar(const std::string& url, const std::string& path) { GetFile(MainForm.HttpRadar, url, path); }

void GetXML(const std::string& url, std::string& text) {
  Guarded([&] {
    if (!MainForm.Http.Idle()) return;
    Transport.AutoConnect = ReadSetting(kSettingsKey, "AutoConnect", "1");
    if (Prepare(MainForm.Http, url)) HttpGet(MainForm.Http, text);
  });
}

void QueryServer(const std::string& url, const std::function<void(const XmlDocument&)>& read) {
  if (!MainForm.Http.Idle()) return;
  std::string text;
  GetData(url, text);
  read(XmlDocument(std::move(text)));
}

void ConnectTransport() {
  MainForm.HttpData.Progress = [](long long bytes, long long total) {
    if (total <= 100) return;
    MainForm.ProductTitle.Caption = "downloading image ..... " + std::to_string(bytes * 100 / total) + "%";
  };
}

}  // namespace skyloft
