// The lists of the main window: what a choice of a location, a category, a product or a time does.
#pragma once

namespace skyloft {

// Shows the location of LocationSelection's index: its conditions, its radar, and the product on show for it.
// Fetches nothing; the data of all locations is held.
void SelectLocation();

// Shows the product of ProductSelection. Does nothing yet.
void SelectProduct();

// Attaches the lists to these.
void ConnectSelection();

}  // namespace skyloft
