// The lists of the main window: what a choice of a location, a category, a product or a time does.
#pragma once

#include <string>

namespace skyloft {

inline constexpr int kForecastMapsCategory = 1;  // the category whose times show a forecast in the banner

struct BrowserState {
  std::string SelectedProduct;  // the entry of ProductSelection from its fifth character on
  int HourIndexMin = 0;         // HourIndex at entry 0 of TimeSelection
  int FirstRouteFrame = 0;      // of a route product: the first frame that is not past, 0 for none
};
extern BrowserState Browser;

// Shows the location of LocationSelection's index: its conditions, its radar, and the product on show for it.
// Fetches nothing for a page; the data of all locations is held.
void SelectLocation();
// Lists the products of the category of CategorySelection's index and shows the first.
void SelectCategory();
// Shows the product of ProductSelection.
void SelectProduct();
// Shows the product at the time of TimeSelection's index.
void SelectTime();

// Show the page and hide the picture, or the other way round.
void ShowPage();
void ShowPicture();

// ProductTitle tells the product and the selected time.
void ShowEntryTitle();

// Attaches the lists to these.
void ConnectSelection();

}  // namespace skyloft
