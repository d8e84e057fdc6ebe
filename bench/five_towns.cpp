#include "five_towns.h"

#include "base/guard.h"
#include "feed/forecast.h"
#include "feed/observations.h"
#include "feedserver/answer.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/drive.h"
#include "platform/qt/registry_qt.h"
#include "settings/registry.h"
#include "setup/demo.h"
#include "weather/almanac.h"
#include "weather/periods.h"

namespace skyloft::bench {
namespace {

const Date kNow = MakeDate(2003, 3, 7, 14, 5, 0);
const Date kNowGmt = MakeDate(2003, 3, 7, 20, 5, 0);

// The feed behind the double of the network: each address is answered once and kept.
void AnswerByFeed(const std::string& url) {
  for (const auto& [known, reply] : Doubles.replies) {
    if (known == url) return;
  }
  const std::string target = url.substr(url.find('/'));
  const size_t question = std::min(target.find('?'), target.size());
  const feed::Request request{target.substr(0, question),
                              target.substr(std::min(question + 1, target.size())), kNowGmt};
  Doubles.replies.emplace_back(url, feed::Answer(request, {}).body);
}

}  // namespace

FiveTowns::FiveTowns() {
  SetZone("America/Chicago");
  StopClock(kNow);
  SetUpDrive(folder_.path(), SKYLOFT_SHARE);
  SetUpStore(folder_.path());
  Doubles.during_fetch = AnswerByFeed;
  SetUpDemoTowns();
  LoadSystem();
  GetMetaData();
  GetCurrentData();
  GetForecastData(0);
  GetPeriod(0);
  GetAlmanac();
  SaveSystem();
}

const std::string& FiveTowns::ReplyTo(const std::string& part) {
  for (const auto& [url, reply] : Doubles.replies) {
    if (url.find(part) != std::string::npos) return reply;
  }
  throw RuntimeError("nothing was asked with " + part);
}

FiveTowns& TheTowns() {
  static FiveTowns towns;
  return towns;
}

}  // namespace skyloft::bench
