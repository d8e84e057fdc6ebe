// The page of the last 48 hours at the selected location: a table of one row an hour.
#pragma once

namespace skyloft {

// Fetches the hours and writes them to \temp\historical.htm under the install path, lines ended by CR LF. On
// any failure, and for a reply without rows or with a cell missing, the file stays as it was.
void GetHistoricalData();

}  // namespace skyloft
