// The readers of replies. All look a tag up in the whole document and take its elements in document order;
// position among equal tags is what carries meaning. `count` is the number of matches minus one, so -1 for an
// absent tag. Each reader guards itself: a failure (an element that is missing, a full table) ends that
// reader and keeps what it read.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/tables.h"
#include "platform/xml.h"

namespace skyloft {

// Texts read from a reply, cells 0 to bound - 1. Reading a cell that was never filled is a run-time error, as
// is filling one beyond the bound.
class TextList {
 public:
  explicit TextList(int bound) : bound_(static_cast<size_t>(bound)) {}
  void Put(int index, std::string text);
  const std::string& operator[](int index) const;

 private:
  size_t bound_;
  std::vector<std::optional<std::string>> cells_;  // up to the last that was filled
};

// Texts by location and item; 5 locations of 67 items.
using QueryGrid = Grid<std::string, 5, 67>;

void ReadXmlValue(const XmlDocument& document, std::string_view tag, std::string& value, int& count);
// The second element of the tag.
void ReadXmlSecondValue(const XmlDocument& document, std::string_view tag, std::string& value, int& count);
void ReadXmlList(const XmlDocument& document, std::string_view tag, TextList& list, int& count);
// Elements 1, 3, 5, ... for locations 0 to `locations`: a reply has each of these tags twice for each
// location, and the second is the one kept.
void ReadXmlOddList(const XmlDocument& document, std::string_view tag, TextList& list, int locations,
                    int& count, int& items);
// All elements in order over locations 0 to `locations`, items 0 to `items` each; `items` is found by
// dividing, so every location must have the same number.
void ReadXmlGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations,
                 int& count, int& items);
// The same, each cell the whole path of an icon.
void ReadXmlIconGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations,
                     int& count, int& items);
// The same, each cell the compass text of a number of degrees.
void ReadXmlWindGrid(const XmlDocument& document, std::string_view tag, QueryGrid& grid, int locations,
                     int& count, int& items);

// The whole path of an icon by its file name.
std::string IconPath(const std::string& file);

}  // namespace skyloft
