// The search for a place in the server's location database.
#pragma once

#include <string>

#include "base/tables.h"

namespace skyloft {

// What the server tells of a place, in the order of the reply's table.
namespace PlaceEntry {
enum : int {
  PostalCode,
  City,
  State,
  County,
  AreaCode,
  GmtOffset,
  Latitude,
  Longitude,
  NwsOffice,
  RadarStationCode,
  RadarStationLatitude,
  RadarStationLongitude,
  NwsRadarServer,
  StateLong,
  DaylightIndicator,
};
}  // namespace PlaceEntry
using PlaceResults = Table<std::string, 15>;

// Asks for the zip code or the city and state of the wizard's search page, unescaped and untrimmed; fills
// `results` and the captions of the wizard's page of results, and proposes the title. Returns 1 when the
// place was found, otherwise 0. The wizard's NextButton is off meanwhile and on again in every case.
int SearchLocationDatabase(PlaceResults& results);

// Shows a place on the wizard's page of results, and proposes it as the title.
void ShowPlace(const PlaceResults& results);
void ClearPlaceResults();

// Copies a place into the profile of a slot; coordinates at two decimals. And back.
void CopyPlace(const PlaceResults& results, int slot);
void ReadPlace(int slot, PlaceResults& results);

// What the two option buttons of the search page do: one input is on, the other off and empty.
void ChooseZipCode();
void ChooseCityState();
void ConnectPlaceOptions();

}  // namespace skyloft
