// The products that the catalogue describes: maps of the forecast models, observed maps, pages of the web.
#pragma once

namespace skyloft {

// Shows the selected product. A page of the web leaves the lists and labels disabled until another product is
// chosen. Raises; what was done until then stays.
void ShowCatalogueProduct();

// Shows it at the selected time; nothing while a picture is being fetched. In the second category the banner
// tells the conditions forecast for that hour.
void ShowCatalogueTime();

// Enables the lists and labels again.
void EnableSelectionLabels();
// Tells the place of the selected time in the position bar.
void ShowPosition();

}  // namespace skyloft
