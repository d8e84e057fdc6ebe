// The catalogues of map sectors and of products, which the servers publish anew for every model run.
#pragma once

#include <string>

#include "base/tables.h"
#include "feed/xml_readers.h"

namespace skyloft {

inline constexpr int kCatalogueRecords = 1001;  // what a longer catalogue is cut off at

// The products, record i of each list is the i-th product. Lists as told by their tags; a record that lacks a
// tag raises when it is read.
struct ProductRecords {
  int last = -1;                             // number of products, less one
  TextList id{kCatalogueRecords};            // one character, the family of sectors
  TextList product{kCatalogueRecords};       // the name as the user sees it
  TextList category{kCatalogueRecords};      // number of the category, the place in `menu`
  TextList code{kCatalogueRecords};          // 0 to 11: how frames are named and times listed; or "url"
  TextList period{kCatalogueRecords};        // number of frames
  TextList file{kCatalogueRecords};          // first part of a picture's name; for "url" the page's address
  TextList type{kCatalogueRecords};          // extension of the pictures, without the point
  int last_menu = -1;                        // number of categories, less one
  TextList menu{kCatalogueRecords};          // texts of the categories
  std::string model, modelx, height, width;  // of the whole file; "" before the first
};

// The rectangles of the map for which there are pictures.
struct SectorRecords {
  int last = -1;                                              // number of sectors, less one
  TextList sector{kCatalogueRecords};                         // name; its first character is the family
  TextList xmin{kCatalogueRecords}, xmax{kCatalogueRecords};  // western and eastern edge, metres on the map
  TextList ymin{kCatalogueRecords}, ymax{kCatalogueRecords};  // southern and northern edge
};

struct CatalogueState {
  std::string ProductCatalogue, SectorCatalogue;  // whole texts as fetched; "" before the first
  ProductRecords ProductRecord;                   // what ProductCatalogue tells
  SectorRecords SectorRecord;                     // what SectorCatalogue tells
  std::string ModelRun;                           // newest run: "00z", "06z", "12z" or "18z"
  std::string ModelRunExtended;                   // the run of the frames beyond hour 66
  std::string ImageHeight, ImageWidth;            // of a product picture, pixels
  // Places in CategorySelection of the three categories that the program knows by name; 0 where there is
  // none.
  int ShareCategoryIndex = 0, SupportCategoryIndex = 0, NewsletterCategoryIndex = 0;
  std::string SectorID, SectorIDPrevious;  // name of the sector in use, and the one before
  // Its edges, metres on the map.
  double SectorXMin = 0, SectorXMax = 0, SectorYMin = 0, SectorYMax = 0;
  Table<int, kCatalogueRecords> ProductMap;  // the product shown as each entry of ProductSelection
};
extern CatalogueState Catalogues;

// Metres a pixel.
struct MapScale {
  double x, y;
};
// The scale of a picture of the sector, by its size in pixels. Raises for a size of 0.
MapScale ScaleOfSector(double width, double height);
// That of the catalogue's pictures.
MapScale ScaleOfSector();

// Fetch the catalogue of the model run. A failed fetch leaves the former one; a text that is not XML has no
// records.
void GetSectorData();
void GetProductData();

// Fills CategorySelection with the catalogue's categories and selects the first.
void GetAvailableCategories();

// Fills ProductSelection with the products of a category, as "007 Reflectivity", the number being the
// product's place in the catalogue, from 1; selects the first. A catalogue with a hole or with too many
// products leaves the list as far as it got, with nothing selected.
void GetAvailableProducts(int category);

// Picks the sector for a point of the map: of the selected product's family, the rectangle around the point
// whose centre lies nearest; of equals the first. `product` is not read. While the national view is on it is
// "200", with the edges of the first sector of all. A point in no rectangle keeps the former name but takes
// those edges too. Radar keeps its sector. All of this is meant; so is that SectorIDPrevious may be a sector
// that was only passed over.
void GetSectorID(int product, double x, double y);

}  // namespace skyloft
