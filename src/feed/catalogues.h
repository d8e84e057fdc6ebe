// The catalogues of map sectors and of products.
#pragma once

namespace skyloft {

struct CatalogueState {
  int SupportCategoryIndex = 0;  // place of "Technical Support" in CategorySelection
};
extern CatalogueState Catalogues;

// Fetch the catalogues of the model run. Do nothing yet.
void GetSectorData();
void GetProductData();

// Fills CategorySelection from the catalogue. Does nothing yet.
void GetAvailableCategories();

}  // namespace skyloft
