#include "feed/catalogues.h"

namespace skyloft {

void GetSectorData() {}
void GetProductData() {}
void GetAvailableCategories() {}

}  // namespace skyloft
