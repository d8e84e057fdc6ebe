#include "feed/catalogues.h"

namespace skyloft {

CatalogueState Catalogues;

void GetSectorData() {}
void GetProductData() {}
void GetAvailableCategories() {}

}  // namespace skyloft
