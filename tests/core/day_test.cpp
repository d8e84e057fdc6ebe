// A day in the life of the program: every request that it makes.
#include <gtest/gtest.h>

#include <QFile>

#include <map>

#include "base/values.h"
#include "core/live_station.h"
#include "core/mainform.h"

namespace skyloft {
namespace {

constexpr int kTickSeconds = 30;

std::string ZipList(const std::vector<std::string>& zips) {
  std::string list;
  for (const std::string& zip : zips) list += (list.empty() ? "pc=" : "&pc=") + zip;
  return list;
}

class DayInTheLife : public LiveStation {
 protected:
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
      MoveTo(DateAdd(DateUnit::Minutes, minute, MakeDate(2003, 3, 6)));
      const std::string stamp =
          feed::BodyOf(feed::Get(server->Port(), "/forecast.asp?t=xml&d=meta&pc=" + zip));
      if (!former.empty() && stamp != former) return minute % 20;
      former = stamp;
    }
    ADD_FAILURE() << "the stamp of " << zip << " never moves";
    return 0;
  }

  qint64 read_to = 0;
};

TEST_F(DayInTheLife, EveryRequestOf24HoursGoesOutAtItsTimeForItsTownsAndNoOther) {
  std::map<std::string, int> phases;
  for (const std::string& zip : zips) phases[zip] = PhaseOf(zip);
  EXPECT_NE(phases[zips[0]], phases[zips[1]]);
  MoveTo(start);
  NewRequests();

  const std::string all = "/forecast.asp?" + ZipList(zips);
  const std::string meta = all + "&t=xml&d=meta";
  const std::string hourly = all + "&st=1%2F1%2F2000+0%3A00%3A00+AM&et=12%2F31%2F2100+12%3A00%3A00+AM&t=xml";
  const std::string extended = all + "&t=xml&fcsttype=extended";
  const std::string hosts = "/skyloft/config/hosts.xml";
  const std::string messages = "/messages.xml.1";
  std::vector<std::string> radar;  // of sites that the feed does not know, so that they are never fresh
  for (int i = 0; i < 3; ++i) {
    radar.push_back("/radar/images/DS.p19r0/SI.ktw" + std::to_string(i) + "/latest.gif");
  }
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
  for (const std::string& zip : zips) held[zip] = observed_at(zip, start);
  EXPECT_EQ(NewRequests(),
            (std::vector<std::string>{hosts, meta, "/products." + catalogue(loaded) + ".4",
                                      "/sectors." + catalogue(loaded), all + "&t=xml&d=current", hourly,
                                      extended, radar[0], radar[1], radar[2], messages}));

  int chains = 0;
  for (int tick = 1; tick <= 24 * 3600 / kTickSeconds; ++tick) {
    const Date now = DateAdd(DateUnit::Seconds, tick * kTickSeconds, start);
    MoveTo(now);
    MainForm.UpdateTimer.Elapse();

    std::vector<std::string> expected;
    if (tick % 10 == 0) expected = {messages};                                        // 5 minutes
    if (tick % 20 == 0) expected.insert(expected.end(), radar.begin(), radar.end());  // 10 minutes
    if (tick % 30 == 0) {                                                             // 15 minutes
      expected.push_back(meta);
      std::vector<std::string> moved;
      for (const std::string& zip : zips) {
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
