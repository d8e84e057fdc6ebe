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

// What a page may still cost. Boxes inside boxes of unknown width are laid out several times and each rule of
// a style sheet is tried on each element, so the cost of a small page can be exponential. Spending throws
// only during the layout; what was spent too much before is charged there.
class LayoutBudget {
 public:
  void BeginPage() { elements_ = kElements, selections_ = kSelections, pieces_ = kPieces; }
  void BeginLayout() { work_ = kWork; }

  bool SpendElement() { return --elements_ >= 0; }
  bool SpendSelection() { return --selections_ >= 0; }
  bool SpendPiece() { return --pieces_ >= 0; }  // of text: a word or the room between two
  void SpendWork(std::size_t amount) {
    work_ -= static_cast<long>(amount);
    if (work_ < 0 || elements_ < 0 || selections_ < 0) throw LayoutTooCostly();
  }

 private:
  static constexpr long kElements = 15'000, kSelections = 1'000'000, kPieces = 30'000, kWork = 60'000;
  long elements_ = kElements, selections_ = kSelections, pieces_ = kPieces, work_ = kWork;
};

// The element of a tag; empty for style, where the class of the engine itself does. `budget` outlives the
// document.
std::shared_ptr<litehtml::element> CreateHtmlElement(const std::string& tag,
                                                     const std::shared_ptr<litehtml::document>& document,
                                                     LayoutBudget& budget);

}  // namespace skyloft
