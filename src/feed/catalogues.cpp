#include "feed/catalogues.h"

#include <cmath>

#include "base/dates.h"
#include "base/values.h"
#include "feed/hosts.h"
#include "feed/transport.h"
#include "forms/main_form.h"
#include "settings/settings.h"

namespace skyloft {

CatalogueState Catalogues;

namespace {

// The hour of the model run in the catalogues' names, two digits. An hour above 12 reads 18.
std::string RunHour() {
  const std::string hour = Format(Settings.ModelServer, "hh");
  return LenientNumber(hour) > 12 ? "18" : hour;
}

// A value of the whole file that it lacks stays as it was.
ProductRecords ReadProducts(const std::string& text, const ProductRecords& former) {
  const XmlDocument document(text);
  ProductRecords records;
  records.model = former.model;
  records.modelx = former.modelx;
  records.height = former.height;
  records.width = former.width;
  int count = -1;
  const std::pair<const char*, TextList*> lists[] = {
      {"id", &records.id},         {"category", &records.category}, {"code", &records.code},
      {"period", &records.period}, {"file", &records.file},         {"type", &records.type},
  };
  for (const auto& [tag, list] : lists) ReadXmlList(document, tag, *list, count);
  ReadXmlList(document, "product", records.product, records.last);
  ReadXmlList(document, "menu", records.menu, records.last_menu);
  const std::pair<const char*, std::string*> values[] = {
      {"model", &records.model},
      {"modelx", &records.modelx},
      {"height", &records.height},
      {"width", &records.width},
  };
  for (const auto& [tag, value] : values) ReadXmlValue(document, tag, *value, count);
  return records;
}

SectorRecords ReadSectors(const std::string& text) {
  const XmlDocument document(text);
  SectorRecords records;
  int count = -1;
  ReadXmlList(document, "sector", records.sector, records.last);
  const std::pair<const char*, TextList*> edges[] = {
      {"xmin", &records.xmin}, {"xmax", &records.xmax}, {"ymin", &records.ymin}, {"ymax", &records.ymax}};
  for (const auto& [tag, list] : edges) ReadXmlList(document, tag, *list, count);
  return records;
}

struct Edges {
  double xmin, xmax, ymin, ymax;
};
Edges EdgesOf(int sector) {
  const SectorRecords& records = Catalogues.SectorRecord;
  return {LenientNumber(records.xmin[sector]), LenientNumber(records.xmax[sector]),
          LenientNumber(records.ymin[sector]), LenientNumber(records.ymax[sector])};
}

// The sector of a family nearest to a point that lies in it; 0 if there is none. Notes each better one as the
// sector in use.
int NearestSector(std::string_view family, double x, double y) {
  CatalogueState& state = Catalogues;
  double best = 1000000000;
  int chosen = 0;
  for (int i = 0; i <= state.SectorRecord.last; ++i) {
    const std::string& name = state.SectorRecord.sector[i];
    if (LeftText(name, 1) != family) continue;
    const Edges edges = EdgesOf(i);
    if (x < edges.xmin || x > edges.xmax || y < edges.ymin || y > edges.ymax) continue;
    const double distance =
        std::hypot(x - (edges.xmin + edges.xmax) * 0.5, y - (edges.ymin + edges.ymax) * 0.5);
    if (distance >= best) continue;
    best = distance;
    state.SectorIDPrevious = state.SectorID;
    state.SectorID = name;
    chosen = i;
  }
  return chosen;
}

}  // namespace

MapScale ScaleOfSector(double width, double height) {
  const CatalogueState& map = Catalogues;
  return {Divide(map.SectorXMax - map.SectorXMin, width), Divide(map.SectorYMax - map.SectorYMin, height)};
}

MapScale ScaleOfSector() {
  return ScaleOfSector(LenientNumber(Catalogues.ImageWidth), LenientNumber(Catalogues.ImageHeight));
}

void GetSectorData() {
  Guarded([] {
    GetData(HostTable.productserver + "sectors." + RunHour() + "z.sys", Catalogues.SectorCatalogue);
    Catalogues.SectorRecord = ReadSectors(Catalogues.SectorCatalogue);
  });
}

void GetProductData() {
  Guarded([] {
    GetData(HostTable.productserver + "products." + RunHour() + "z.sys.4", Catalogues.ProductCatalogue);
    Catalogues.ProductRecord = ReadProducts(Catalogues.ProductCatalogue, Catalogues.ProductRecord);
  });
}

void GetAvailableCategories() {
  Guarded([] {
    CatalogueState& state = Catalogues;
    state.ShareCategoryIndex = state.SupportCategoryIndex = state.NewsletterCategoryIndex = 0;
    const ProductRecords& records = state.ProductRecord;
    state.ModelRun = records.model;
    state.ModelRunExtended = records.modelx;
    state.ImageHeight = records.height;
    state.ImageWidth = records.width;
    const std::pair<const char*, int*> special[] = {
        {"Share Skyloft", &state.ShareCategoryIndex},
        {"Technical Support", &state.SupportCategoryIndex},
        {"Monthly Newsletter", &state.NewsletterCategoryIndex},
    };
    MainForm.CategorySelection.Clear();
    for (int k = 0; k <= records.last_menu; ++k) {
      MainForm.CategorySelection.AddItem(records.menu[k]);
      for (const auto& [text, index] : special) {
        if (records.menu[k] == text) *index = k;
      }
    }
    MainForm.CategorySelection.Select(0);
  });
}

void GetAvailableProducts(int category) {
  Guarded([&] {
    const ProductRecords& records = Catalogues.ProductRecord;
    MainForm.ProductSelection.Clear();
    int k = 0;
    for (int i = 0; i <= records.last; ++i) {
      if (LenientNumber(records.category[i]) != category) continue;
      MainForm.ProductSelection.AddItem(ThreeDigits(i + 1) + " " + records.product[i]);
      Catalogues.ProductMap[k++] = i;
    }
    MainForm.ProductSelection.Select(0);
  });
}

void GetSectorID(int, double x, double y) {
  Guarded([&] {
    CatalogueState& state = Catalogues;
    const std::string product(MiddleText(MainForm.ProductSelection.Text(), 5));
    if (product == "Hourly Weather Planner" || product == "Reflectivity") return;
    const std::string& family =
        state.ProductRecord.id[state.ProductMap[MainForm.ProductSelection.ListIndex()]];
    int chosen = 0;
    if (MainForm.NationalButton.Enabled) {
      chosen = NearestSector(family, x, y);
    } else {
      state.SectorID = "200";
    }
    const Edges edges = EdgesOf(chosen);
    state.SectorXMin = edges.xmin;
    state.SectorXMax = edges.xmax;
    state.SectorYMin = edges.ymin;
    state.SectorYMax = edges.ymax;
  });
}

}  // namespace skyloft
