#include "feed/catalogues.h"

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

// The place of a product in the catalogue, from 1, with three digits.
std::string ChannelNumber(int place) {
  const std::string digits = std::to_string(place);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

}  // namespace

void GetSectorData() {
  Guarded([] {
    GetData(HostTable.productserver + "sectors." + RunHour() + "z.sys", Catalogues.SectorCatalogue);
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
      MainForm.ProductSelection.AddItem(ChannelNumber(i + 1) + " " + records.product[i]);
      Catalogues.ProductMap[k++] = i;
    }
    MainForm.ProductSelection.Select(0);
  });
}

}  // namespace skyloft
