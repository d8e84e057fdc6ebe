// The lists of the main window: what a choice of a location, a category, a product or a time does.
#pragma once

#include <string>

namespace skyloft {

struct BrowserState {
  std::string SelectedProduct;  // the entry of ProductSelection from its fifth character on
  int HourIndexMin = 0;         // HourIndex at entry 0 of TimeSelection
};
extern BrowserState Browser;

// Shows the location of LocationSelection's index: its conditions, its radar, and the product on show for it.
// Fetches nothing; the data of all locations is held.
void SelectLocation();
// Lists the products of the category of CategorySelection's index and shows the first.
void SelectCategory();
// Shows the product of ProductSelection: the planners and the last 48 hours; nothing yet for all others.
void SelectProduct();
// Shows the product at the time of TimeSelection's index.
void SelectTime();

// ProductTitle tells the product and the selected time.
void ShowEntryTitle();

// Attaches the lists to these.
void ConnectSelection();

}  // namespace skyloft
