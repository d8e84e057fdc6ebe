#include "feed/forecast.h"

namespace skyloft {

Grid<ForecastHourFields, 5, kForecastHours> ForecastHour;
Grid<ForecastDayFields, 5, kForecastDays> ForecastDay;

void GetForecastData(int) {}

}  // namespace skyloft
