// A feed that was well at the start and fails when the model changes.
#include <gtest/gtest.h>

#include <QElapsedTimer>

#include "core/live_station.h"
#include "core/mainform.h"
#include "core/refresh.h"
#include "feed/catalogues.h"
#include "feed/forecast.h"
#include "feed/hosts.h"
#include "feed/observations.h"
#include "weather/periods.h"

namespace skyloft {
namespace {

constexpr const char* kPaths[] = {
    "/skyloft/config/hosts.xml", "/sectors.12z.sys",  "/products.12z.sys.4",    "/forecast.asp?d=meta",
    "/forecast.asp?d=current",   "/forecast.asp?&st", "/forecast.asp?extended",
};
constexpr const char* kKinds[] = {"500",  "empty", "cut",  "garbage",    "refuse",
                                  "huge", "hang",  "drip", "wrong-count"};

// The temperatures of the hours, and the readings; what pages show is made of them.
struct Data {
  decltype(ForecastHour) hours;
  decltype(ForecastDay) days;
  std::string readings;
};

class RefreshFault : public LiveStation, public ::testing::WithParamInterface<const char*> {
 protected:
  static Data Held() {
    Data data{ForecastHour, ForecastDay, ""};
    for (const std::string& text : ObservationRecord.Tf) data.readings += text + ",";
    return data;
  }
  static std::string Hours(const Data& data) {
    std::string text;
    for (const auto& location : data.hours) {
      for (const auto& hour : location) text += hour.Lt + hour.Tf + ",";
    }
    return text;
  }
  static std::string Days(const Data& data) {
    std::string text;
    for (const auto& location : data.days) {
      for (const auto& day : location) text += day.Ut + day.Th + ",";
    }
    return text;
  }
  // One refresh in which conditions and forecast are due.
  static void RefreshAll() {
    Refresh.CurrentTimer = Refresh.NexradTimer = 1e6;
    Refresh.ForecastTimer = "1000000";
    MainForm.UpdateTimer.Elapse();
  }
};

TEST_P(RefreshFault, LeavesTheDataOnShowAndIsMadeGoodOnceTheFeedIsWell) {
  for (const std::string path : kPaths) {
    ConnectTo({});
    MoveTo(start);
    Settings.ModelLocal = "";
    ObservationRecord = {};
    LoadMainForm();
    ASSERT_EQ(Settings.ModelLocal, "Mar 07 2003 06:00AM") << path;
    const Data before = Held();
    ASSERT_NE(before.hours[2][65].Tf, "");

    ConnectTo({"--fault", path + "=" + GetParam()});
    MoveTo(DateAdd(DateUnit::Hours, 6, start));  // the run of 12 GMT is done
    MainForm.Http.Timeout = 200;                 // for what hangs and drips
    QElapsedTimer clock;
    clock.start();
    RefreshAll();
    EXPECT_LT(clock.elapsed(), 10000) << path;
    EXPECT_TRUE(MainForm.Http.Idle());
    const Data after = Held();
    const bool counts =
        std::string(GetParam()) == "wrong-count";  // which gives a town its neighbour's values
    if (!counts) {
      const bool hourly = path.ends_with("&st");
      const bool extended = path.ends_with("extended");
      const bool meta = path.ends_with("meta");
      EXPECT_EQ(Hours(after) == Hours(before), hourly || meta) << path;
      EXPECT_EQ(Days(after) == Days(before), hourly || extended || meta) << path;
      EXPECT_EQ(Settings.ModelLocal == "Mar 07 2003 06:00AM", hourly || extended || meta) << path;
      EXPECT_EQ(after.readings == before.readings, path.ends_with("current") || meta) << path;
    }
    const bool products = path.find("products") != std::string::npos;
    EXPECT_TRUE(products || Catalogues.ProductRecord.last > 0) << path;
    EXPECT_NE(HostTable.forecastserver, "");

    ConnectTo({});
    MoveTo(DateAdd(DateUnit::Hours, 12, start));  // the run of 18 GMT is done
    MainForm.Http.Timeout = 60000;
    RefreshAll();
    EXPECT_EQ(Settings.ModelLocal, "Mar 07 2003 06:00PM") << path;
    const Data good = Held();
    ForecastHour = {};
    ForecastDay = {};
    Settings.ModelLocal = "";
    GetForecastData(0);
    EXPECT_EQ(Hours(good), Hours(Held())) << path << ": as after a fresh load";
    EXPECT_EQ(Days(good), Days(Held())) << path;
    EXPECT_EQ(ForecastHour[2][0].Ut, "Mar 07 2003 07:00PM") << path;
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, RefreshFault, ::testing::ValuesIn(kKinds), [](const auto& test) {
  const std::string name = test.param;
  return name == "wrong-count" ? std::string("WrongCount") : name;
});

}  // namespace
}  // namespace skyloft
