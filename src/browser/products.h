// How each product is shown once it is chosen: the pages and the radar by procedures of their own, all others
// as the catalogue tells.
#pragma once

namespace skyloft {

// Shows Browser.SelectedProduct. Raises; what was done until then stays.
void ShowProduct();

// Shows it at the selected time.
void ShowProductTime();

}  // namespace skyloft
