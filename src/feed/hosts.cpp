#include "feed/hosts.h"

#include "feed/addresses.h"
#include "feed/transport.h"
#include "feed/xml_readers.h"
#include "forms/initializing_form.h"
#include "forms/main_form.h"
#include "forms/ticker_form.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/http.h"
#include "platform/process.h"
#include "platform/shell.h"
#include "settings/settings.h"

namespace skyloft {

HostTableFields HostTable;
HostsState HostAddress;

namespace {

void EndUnreachable() {
  ShowBox(BoxKind::Error,
          "ERROR: SKYLOFT SERVER UNREACHABLE. Check your internet connection and/or firewall.");
  EndProcess();
}

// Fetches the installer and starts it, whether the download worked or not; the cached data goes in either
// case.
void InstallUpdate(int mode, const std::string& server_version) {
  const std::string installer = Settings.InstallPath + "\\temp\\skltupdate.exe";
  if (mode == 1) {
    MainForm.Visible = false;
    TickerForm.Visible = false;
  }
  InitializingForm.SoftwareVersion.Caption = server_version;
  InitializingForm.SoftwareStatus.Caption = "downloading update";
  InitializingForm.Visible = true;
  HttpControl& http = InitializingForm.UpdateHttp;
  if (http.Idle()) {
    DialConnection();
    http.Url = HostTable.updateserver;
    HttpGetFile(http, installer);
  }
  Guarded([] { DeleteFile(Settings.InstallPath + "\\sklt.dat"); });
  StartUpdate(installer);
}

}  // namespace

void CheckHosts(int mode) {
  Guarded([&] {
    HostAddress.Hosts = HostAddress.WebHost + kHostTablePath;
    std::string server_version;
    ReadHostTable(mode, HostAddress.Hosts, server_version);
    CheckUpdate(mode, server_version, kOwnVersion);
  });
}

void ReadHostTable(int mode, const std::string& address, std::string& server_version) {
  Guarded([&] {
    if (!MainForm.Http.Idle()) return;
    std::string text;
    GetXML(address, text);
    const XmlDocument document(std::move(text));
    const std::pair<const char*, std::string*> tags[] = {
        {"version", &server_version},
        {"fileserver", &HostTable.fileserver},
        {"productserver", &HostTable.productserver},
        {"messageserver", &HostTable.messageserver},
        {"messageinterval", &HostTable.messageinterval},
        {"forecastserver", &HostTable.forecastserver},
        {"imageserver", &HostTable.imageserver},
        {"updateserver", &HostTable.updateserver},
        {"helpserver", &HostTable.helpserver},
        {"supportserver", &HostTable.supportserver},
        {"shareserver", &HostTable.shareserver},
    };
    int count = 0;
    for (const auto& [tag, field] : tags) ReadXmlValue(document, tag, *field, count);
    if (mode == 0 && server_version.empty()) EndUnreachable();
  });
}

void CheckUpdate(int mode, const std::string& server_version, const std::string& own_version) {
  Guarded([&] {
    if (server_version.empty() || server_version == own_version) {
      if (mode == 0 && server_version.empty()) EndUnreachable();
      return;
    }
    const std::string question = "Skyloft updates are available! Click OK to continue.";
    if (ShowBox(BoxKind::Update, question) == BoxAnswer::Ok) InstallUpdate(mode, server_version);
    EndProcess();
  });
}

void ConnectHosts() {
  InitializingForm.UpdateHttp.Progress = [](long long bytes, long long total) {
    if (!InitializingForm.Visible || total <= 100) return;
    InitializingForm.SoftwareStatus.Caption = "downloading update " + std::to_string(bytes) + " bytes";
    InitializingForm.ProgressBar.Max = static_cast<int>(total);
    InitializingForm.ProgressBar.Value = static_cast<int>(bytes);
  };
}

}  // namespace skyloft
