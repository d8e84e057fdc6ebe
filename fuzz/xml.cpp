// A reply of any bytes goes through the document and every reader.
#include <algorithm>

#include "feed/xml_readers.h"
#include "require.h"

namespace skyloft {
namespace {

constexpr int kBound = 5;

void ReadList(const XmlDocument& reply, const char* tag) {
  TextList list(kBound);
  int count = 0;
  ReadXmlList(reply, tag, list, count);
  Require(count == reply.Count(tag) - 1, "a list counts its elements");
  for (int i = 0; i <= std::min(count, kBound - 1); ++i) {
    Require(list[i] == reply.Text(tag, i), "a list holds the elements in order");
  }
}

void ReadAll(const XmlDocument& reply, const char* tag) {
  ReadList(reply, tag);
  int count = 0;
  std::string first = "kept";
  std::string second = "kept";
  ReadXmlValue(reply, tag, first, count);
  ReadXmlSecondValue(reply, tag, second, count);
  Require(first == (count >= 0 ? reply.Text(tag, 0) : "kept"), "the first element, or the old value");
  Require(second == (count >= 1 ? reply.Text(tag, 1) : "kept"), "the second element, or the old value");
  for (int locations : {-1, 0, 2, kBound}) {
    int items = 0;
    TextList odd(kBound);
    QueryGrid grid;
    ReadXmlOddList(reply, tag, odd, locations, count, items);
    ReadXmlGrid(reply, tag, grid, locations, count, items);
    ReadXmlIconGrid(reply, tag, grid, locations, count, items);
    ReadXmlWindGrid(reply, tag, grid, locations, count, items);
  }
}

}  // namespace
}  // namespace skyloft

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  const skyloft::XmlDocument reply(std::string(reinterpret_cast<const char*>(bytes), size));
  for (const char* tag : {"City", "Lt", "Wd", "r", "absent"}) skyloft::ReadAll(reply, tag);
  return 0;
}
