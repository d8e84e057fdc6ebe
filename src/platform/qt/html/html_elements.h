// The elements of a page with the attributes of old HTML, which the engine knows only in part: colours
// without "#", borders and padding of tables, margins of the body, backgrounds of cells, sizes of fonts.
#pragma once

#include <litehtml/litehtml.h>

#include <memory>
#include <stdexcept>

namespace skyloft {

// Thrown out of the engine when a page costs too much to lay out.
struct LayoutTooCostly : std::runtime_error {
  LayoutTooCostly() : std::runtime_error("page too costly to lay out") {}
};

// How many boxes a page may still lay out. Boxes inside boxes of unknown width are laid out several times, so
// the cost of a small page can be exponential.
class LayoutBudget {
 public:
  void Refill() { left_ = kBoxes; }
  void Spend() {
    if (--left_ < 0) throw LayoutTooCostly();
  }

 private:
  static constexpr int kBoxes = 150'000;
  int left_ = kBoxes;
};

// The element of a tag; empty where the class of the engine itself does (style, link). `budget` outlives the
// document.
std::shared_ptr<litehtml::element> CreateHtmlElement(const std::string& tag,
                                                     const std::shared_ptr<litehtml::document>& document,
                                                     LayoutBudget& budget);

}  // namespace skyloft
