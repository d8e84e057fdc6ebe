#include "feed/xml_readers.h"

#include "base/values.h"
#include "settings/settings.h"
#include "weather/sky.h"

namespace skyloft {
namespace {

int ItemsPerLocation(int count, int locations) {
  return static_cast<int>(DivideWhole(count + 1, locations + 1)) - 1;
}

template <class Convert>
void ReadGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations, int& count,
              int& items, Convert convert) {
  Guarded([&] {
    std::vector<std::string> texts = document.Texts(tag);
    count = static_cast<int>(texts.size()) - 1;
    items = ItemsPerLocation(count, locations);
    auto text = texts.begin();
    for (int location = 0; location <= locations; ++location) {
      for (int item = 0; item <= items; ++item) grid[location][item] = convert(*text++);
    }
  });
}

void ReadMatch(const XmlDocument& document, std::string_view tag, int match, std::string& value, int& count) {
  Guarded([&] {
    count = document.Count(tag) - 1;
    value = document.Text(tag, match);
  });
}

}  // namespace

void TextList::Put(int index, std::string text) {
  const size_t cell = CheckedIndex(index, bound_);
  if (cell >= cells_.size()) cells_.resize(cell + 1);
  cells_[cell] = std::move(text);
}

const std::string& TextList::operator[](int index) const {
  const auto& cell = cells_[CheckedIndex(index, cells_.size())];
  if (!cell) throw RuntimeError("the reply has no item " + std::to_string(index));
  return *cell;
}

void ReadXmlValue(const XmlDocument& document, std::string_view tag, std::string& value, int& count) {
  ReadMatch(document, tag, 0, value, count);
}

void ReadXmlSecondValue(const XmlDocument& document, std::string_view tag, std::string& value, int& count) {
  ReadMatch(document, tag, 1, value, count);
}

void ReadXmlList(const XmlDocument& document, std::string_view tag, TextList& list, int& count) {
  Guarded([&] {
    count = document.Count(tag) - 1;
    for (int i = 0; i <= count; ++i) list.Put(i, document.Text(tag, i));
  });
}

void ReadXmlOddList(const XmlDocument& document, std::string_view tag, TextList& list, int locations,
                    int& count, int& items) {
  Guarded([&] {
    count = document.Count(tag) - 1;
    items = ItemsPerLocation(count, locations);
    for (int i = 0; i <= locations; ++i) list.Put(i, document.Text(tag, 2 * i + 1));
  });
}

void ReadXmlGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations,
                 int& count, int& items) {
  ReadGrid(document, tag, grid, locations, count, items, [](std::string& text) { return std::move(text); });
}

void ReadXmlIconGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations,
                     int& count, int& items) {
  ReadGrid(document, tag, grid, locations, count, items, IconPath);
}

void ReadXmlWindGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations,
                     int& count, int& items) {
  ReadGrid(document, tag, grid, locations, count, items,
           [](const std::string& text) { return GetWindDirection(LenientNumber(text)); });
}

std::string IconPath(const std::string& file) { return Settings.InstallPath + "\\icons\\" + file; }

}  // namespace skyloft
