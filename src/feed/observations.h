// What changed on the server and the current conditions of each location.
#pragma once

#include <string>

#include "base/tables.h"
#include "feed/xml_readers.h"

namespace skyloft {

// One reading for each location slot: parallel tables named by their tags, texts as they arrived.
struct ObservationTables {
  using Cells = Table<std::string, 5>;
  Cells ObsStamp;        // Obs_TS_UTC of the reading held, GMT; "" until the first reading
  Cells ObsStampServer;  // Obs_TS_UTC that the last meta query told
  Cells City, State;
  Cells Lt;            // time of the reading, local to the location
  Cells Desc;          // weather in words
  Cells Ic;            // icon, a whole path
  Cells Tf, Df, At;    // temperature, dew point, apparent temperature; degrees Fahrenheit
  Cells Rh;            // relative humidity, percent
  Cells Ws;            // wind speed, miles per hour
  Cells Wd;            // compass text of three characters
  Cells Vi;            // visibility, miles
  Cells Slp;           // pressure, inches
  Cells Avg_H, Avg_L;  // normal high and low of the day, degrees Fahrenheit
};
extern ObservationTables ObservationRecord;

struct ObservationState {
  std::string ModelServerTrip;  // stamp of the model run behind the route products, GMT; not saved
};
extern ObservationState Observations;

// Asks for the stamps of all locations and of the model run. A failed fetch leaves all stamps as they are.
void GetMetaData();

// Fetches the locations whose stamp differs from the one held; sends nothing when there is none. A reply with
// too few elements stops at the first missing one, and the slots before it are updated.
void GetCurrentData();

// The last hours at a location: texts as they arrived, rows in the order of the reply. A cell that the reply
// lacked raises when it is read.
struct HistoricalReadings {
  static constexpr int kRows = 101;  // what a longer reply is cut off at
  int rows = 0;                      // 0 without a reply
  TextList Lt{kRows}, Ic{kRows}, Desc{kRows}, Tf{kRows}, Df{kRows}, Rh{kRows};
  TextList Wd{kRows}, Ws{kRows}, Vi{kRows};  // Wd in degrees, Ic a file name
};
// Fetches them for the selected location. Raises when there is none.
void QueryHistoricalData(HistoricalReadings& out);

// Current conditions at a position. No caller yet.
struct PointConditions {
  std::string City, State, Lt, SkyID, Tf, At, Df, Rh, Wd, Ws, Vi;
  std::string Desc, Ic;  // by SkyID
};
void GetCurrentConditionsRT(const std::string& longitude, const std::string& latitude, PointConditions& out);

// "pc=" and the zip codes of locations first to last, joined by "&pc=".
std::string ZipCodeSelection(int first, int last);

}  // namespace skyloft
