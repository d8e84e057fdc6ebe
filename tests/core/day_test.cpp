// A day in the life: the real transport against a feed whose clock goes with the program's.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <map>

#include "base/values.h"
#include "core/mainform.h"
#include "feed/hosts.h"
#include "feedserver/running_server.h"
#include "forms/main_form.h"
#include "forms/system_options_form.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/drive.h"
#include "platform/qt/http_qt.h"
#include "settings/location_profiles.h"
#include "settings/registry.h"
#include "settings/settings.h"
#include "station.h"

namespace skyloft {
namespace {

const std::vector<std::string> kZips = {"66044", "33131", "98101"};
constexpr int kTickSeconds = 30;

std::string Isotime(Date date) { return Format(date, "yyyy-mm-dd") + "T" + Format(date, "hh:nn:ss"); }

std::string ZipList(const std::vector<std::string>& zips) {
  std::string list;
  for (const std::string& zip : zips) list += (list.empty() ? "pc=" : "&pc=") + zip;
  return list;
}

class DayInTheLife : public Station {
 protected:
  DayInTheLife() {
    SetUpDrive(folder.path(), folder.path() + "/share");
    SetZone("UTC");
    StopClock(start);
    server.MoveClock(Isotime(start));
    SetExampleServer("127.0.0.1:" + std::to_string(server.Port()));
    LoadOptions();
    SetUpLocations(static_cast<int>(kZips.size()));
    for (int i = 0; i < 3; ++i) LocationProfile[ProfileRow::ZipCode][i] = kZips[static_cast<size_t>(i)];
    SaveSystem();
    MainForm.LocationSelection.Clear();
  }

  // The requests since the last call, as "path?query", in the order in which the feed took them.
  std::vector<std::string> NewRequests() {
    QFile file(log);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    file.seek(read_to);
    std::vector<std::string> requests;
    for (const QByteArray& line : file.readAll().split('\n')) {
      const auto field = [&](const char* name) {
        const QByteArray start_of = QByteArray("\"") + name + "\":\"";
        const qsizetype from = line.indexOf(start_of) + start_of.size();
        return line.mid(from, line.indexOf('"', from) - from).toStdString();
      };
      if (line.isEmpty()) continue;
      requests.push_back(field("path") + (field("query").empty() ? "" : "?" + field("query")));
    }
    read_to = file.size();
    return requests;
  }

  // The minute, from 0 to 19, at which a town is observed: that at which its stamp moves.
  int PhaseOf(const std::string& zip) {
    std::string former;
    for (int minute = 0; minute <= 40; ++minute) {
      server.MoveClock(Isotime(DateAdd(DateUnit::Minutes, minute, MakeDate(2003, 3, 6))));
      const std::string stamp =
          feed::BodyOf(feed::Get(server.Port(), "/forecast.asp?t=xml&d=meta&pc=" + zip));
      if (!former.empty() && stamp != former) return minute % 20;
      former = stamp;
    }
    ADD_FAILURE() << "the stamp of " << zip << " never moves";
    return 0;
  }

  int argc = 0;
  QCoreApplication application{argc, nullptr};
  QTemporaryDir folder;
  QString log = folder.filePath("requests.log");
  qint64 read_to = 0;
  const Date start = MakeDate(2003, 3, 7, 14, 0, 0);
  feed::RunningServer server{{"--port", "0", "--log", log.toStdString()}};
};

TEST_F(DayInTheLife, EveryRequestOf24HoursGoesOutAtItsTimeForItsTownsAndNoOther) {
  std::map<std::string, int> phases;
  for (const std::string& zip : kZips) phases[zip] = PhaseOf(zip);
  EXPECT_NE(phases[kZips[0]], phases[kZips[1]]);
  server.MoveClock(Isotime(start));
  NewRequests();

  const std::string all = "/forecast.asp?" + ZipList(kZips);
  const std::string meta = all + "&t=xml&d=meta";
  const std::string hourly = all + "&st=1%2F1%2F2000+0%3A00%3A00+AM&et=12%2F31%2F2100+12%3A00%3A00+AM&t=xml";
  const std::string extended = all + "&t=xml&fcsttype=extended";
  const std::string hosts = "/skyloft/config/hosts.xml";
  const auto catalogue = [](Date run) { return Format(run, "hh") + "z.sys"; };
  // The model runs every six hours and is done three hours later.
  const auto run_at = [](Date now) { return Date{(now.seconds - 3 * 3600) / 21600 * 21600}; };
  const auto observed_at = [&](const std::string& zip, Date now) {
    const std::int64_t phase = phases[zip] * 60;
    return (now.seconds - phase) / 1200 * 1200 + phase;
  };

  LoadMainForm();
  ASSERT_TRUE(MainForm.UpdateTimer.Enabled);
  Date loaded = run_at(start);
  std::map<std::string, std::int64_t> held;
  for (const std::string& zip : kZips) held[zip] = observed_at(zip, start);
  EXPECT_EQ(NewRequests(), (std::vector<std::string>{hosts, meta, "/products." + catalogue(loaded) + ".4",
                                                     "/sectors." + catalogue(loaded),
                                                     all + "&t=xml&d=current", hourly, extended}));

  int chains = 0;
  for (int tick = 1; tick <= 24 * 3600 / kTickSeconds; ++tick) {
    const Date now = DateAdd(DateUnit::Seconds, tick * kTickSeconds, start);
    StopClock(now);
    server.MoveClock(Isotime(now));
    MainForm.UpdateTimer.Elapse();

    std::vector<std::string> expected;
    if (tick % 30 == 0) {  // 15 minutes
      expected.push_back(meta);
      std::vector<std::string> moved;
      for (const std::string& zip : kZips) {
        if (held[zip] != observed_at(zip, now)) moved.push_back(zip);
        held[zip] = observed_at(zip, now);
      }
      if (!moved.empty()) expected.push_back("/forecast.asp?" + ZipList(moved) + "&t=xml&d=current");
    }
    if (tick % 120 == 0) {  // 60 minutes
      expected.push_back(meta);
      if (const Date run = run_at(now); run != loaded) {
        const std::string name = catalogue(run);
        expected.insert(expected.end(),
                        {hosts, "/sectors." + name, "/products." + name + ".4", hourly, extended});
        loaded = run;
        ++chains;
      }
    }
    ASSERT_EQ(NewRequests(), expected) << "at " << DateText(now);
  }
  EXPECT_EQ(chains, 4);
  EXPECT_EQ(ReadDate(Settings.ModelLocal), loaded);
}

}  // namespace
}  // namespace skyloft
