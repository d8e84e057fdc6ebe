// A station on the real transport, with a feed whose clock goes with its own.
#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

#include "feedserver/running_server.h"
#include "forms/main_form.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/drive.h"
#include "platform/qt/http_qt.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {

// Three towns in the store, at a computer in GMT; 7 March 2003, 14:00, when the model run of 6 GMT is done.
class LiveStation : public Station {
 protected:
  explicit LiveStation(std::vector<std::string> feed_options = {}) {
    SetUpDrive(folder.path(), folder.path() + "/share");
    SetZone("UTC");
    ConnectTo(std::move(feed_options));
    MoveTo(start);
    LoadOptions();
    SetUpLocations(static_cast<int>(zips.size()));
    for (size_t i = 0; i < zips.size(); ++i) {
      LocationProfile[ProfileRow::ZipCode][static_cast<int>(i)] = zips[i];
    }
    SaveSystem();
    MainForm.LocationSelection.Clear();
  }

  // Another feed takes the place of the former.
  void ConnectTo(std::vector<std::string> feed_options) {
    feed_options.insert(feed_options.begin(), {"--port", "0", "--log", log.toStdString()});
    server = std::make_unique<feed::RunningServer>(std::move(feed_options));
    SetExampleServer("127.0.0.1:" + std::to_string(server->Port()));
  }

  // Both clocks stand at that moment.
  void MoveTo(Date moment) {
    StopClock(moment);
    server->MoveClock(Format(moment, "yyyy-mm-dd") + "T" + Format(moment, "hh:nn:ss"));
  }

  const std::vector<std::string> zips = {"66044", "33131", "98101"};
  const Date start = MakeDate(2003, 3, 7, 14, 0, 0);
  QTemporaryDir folder;
  const QString log = folder.filePath("requests.log");
  std::unique_ptr<feed::RunningServer> server;

 private:
  int argc_ = 0;
  QCoreApplication application_{argc_, nullptr};
};

}  // namespace skyloft
