#include "feed/point_forecast.h"

#include "forms/main_form.h"
#include "station.h"

namespace skyloft {
namespace {

class PointForecastTest : public Station {};

TEST_F(PointForecastTest, OneHourIsAskedForByTheClockOfTwelveWithZeroForMidnight) {
  const std::pair<Date, const char*> cases[] = {
      {MakeDate(2003, 3, 7, 0, 0, 0), "3%2F7%2F2003+0%3A00%3A00+AM"},
      {MakeDate(2003, 3, 7, 9, 40, 0), "3%2F7%2F2003+9%3A00%3A00+AM"},
      {MakeDate(2003, 12, 17, 12, 0, 0), "12%2F17%2F2003+12%3A00%3A00+PM"},
      {MakeDate(2003, 12, 17, 13, 0, 0), "12%2F17%2F2003+1%3A00%3A00+PM"},
      {MakeDate(2003, 12, 17, 23, 59, 59), "12%2F17%2F2003+11%3A00%3A00+PM"},
  };
  for (const auto& [time, hour] : cases) {
    Doubles.requests.clear();
    QueryPointForecast("38.97", "-95.24", time);
    EXPECT_EQ(Doubles.requests,
              std::vector<std::string>{
                  std::string("forecast.skyloft.example/forecast.asp?lat=38.97&long=-95.24&st=") + hour +
                  "&et=" + hour + "&t=xml"});
  }
}

TEST_F(PointForecastTest, EveryTagIsReadPlainly) {
  std::string elements;
  for (const char* tag :
       {"city_state", "Ut", "Lt", "Desc", "Ic", "Tf", "Df", "Rh", "At", "Wd", "Ws", "Rn", "Sn"}) {
    elements += Element(tag, std::string("the ") + tag);
  }
  Doubles.Reply("lat=", Reply(elements));
  const PointForecast hour = QueryPointForecast("1", "2", Doubles.now);
  EXPECT_EQ(hour.city_state + hour.Ut + hour.Lt + hour.Desc, "the city_statethe Utthe Ltthe Desc");
  EXPECT_EQ(hour.Ic + hour.Tf + hour.Df + hour.Rh + hour.At, "the Icthe Tfthe Dfthe Rhthe At");
  EXPECT_EQ(hour.Wd + hour.Ws + hour.Rn + hour.Sn, "the Wdthe Wsthe Rnthe Sn");
}

TEST_F(PointForecastTest, WithoutAReplyAllIsEmpty) {
  EXPECT_EQ(QueryPointForecast("1", "2", Doubles.now).Lt, "");
  MainForm.Http.State = 1;
  EXPECT_EQ(QueryPointForecast("1", "2", Doubles.now).city_state, "");
  EXPECT_EQ(Doubles.requests.size(), 1u);
}

}  // namespace
}  // namespace skyloft
