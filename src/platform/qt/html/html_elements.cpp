#include "platform/qt/html/html_elements.h"

#include <litehtml/el_anchor.h>
#include <litehtml/el_body.h>
#include <litehtml/el_break.h>
#include <litehtml/el_image.h>
#include <litehtml/el_link.h>
#include <litehtml/el_table.h>
#include <litehtml/el_tr.h>

#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include "platform/qt/html/html_hints.h"

namespace skyloft {
namespace {

// The engine trusts that parts of tables are where they belong, and a style sheet could say otherwise of any
// tag. What to set in place of a display that would harm; null where it does not.
const char* SafeDisplay(const std::string& tag, std::string_view display) {
  static const std::map<std::string, const char*, std::less<>> parts = {
      {"table", "table"},           {"caption", "table-caption"}, {"thead", "table-header-group"},
      {"tbody", "table-row-group"}, {"tr", "table-row"},          {"tfoot", "table-footer-group"},
      {"td", "table-cell"},         {"th", "table-cell"}};
  if (display == "none") return nullptr;
  const auto part = parts.find(tag);
  if (part != parts.end()) return display == part->second ? nullptr : part->second;
  return display == "inherit" || display.find("table") != display.npos ? "block" : nullptr;
}

// An element of the engine with our hints. Base has no mapping of its own that could contradict: its result
// is overwritten, and the background never reaches it (it cuts addresses at a parenthesis).
template <class Base>
class Hinted : public Base {
 public:
  Hinted(const std::shared_ptr<litehtml::document>& document, LayoutBudget& budget)
      : Base(document), budget_(budget) {}

  int render(int x, int y, int max_width, bool second_pass) override {
    budget_.SpendWork(1 + this->m_children.size() / 4);
    return Base::render(x, y, max_width, second_pass);
  }

  // Each float is compared with those before it.
  void add_float(const litehtml::element::ptr& child, int x, int y) override {
    budget_.SpendWork((this->m_floats_left.size() + this->m_floats_right.size()) / 4);
    Base::add_float(child, x, y);
  }

  int select(const litehtml::css_selector& selector, bool apply_pseudo) override {
    return budget_.SpendSelection() ? Base::select(selector, apply_pseudo) : litehtml::select_no_match;
  }
  using Base::select;

  void parse_attributes() override {
    const auto background = this->m_attrs.find("background");
    if (background != this->m_attrs.end()) {
      background_ = background->second;
      this->m_attrs.erase(background);
    }
    Base::parse_attributes();
    for (const StyleHint& hint : HintsOf(*this)) {
      this->m_style.add_property(hint.property, hint.value.c_str(), nullptr, false, this);
    }
  }

  // Nothing changes under the mouse: the engine would compute the styles anew, without the hints.
  bool set_pseudo_class(const char*, bool) override { return false; }

  void parse_styles(bool is_reparse) override {
    const auto own = this->m_attrs.find("style");
    if (own != this->m_attrs.end()) {
      this->m_style.add(own->second.c_str(), nullptr, this);
      this->m_attrs.erase(own);
    }
    const char* display = this->m_style.get_property("display");
    if (const char* safe = SafeDisplay(this->m_tag, display ? display : "")) {
      this->m_style.add_property("display", safe, nullptr, true, this);
    }
    Base::parse_styles(is_reparse);
    if (background_.empty() || !this->m_bg.m_image.empty()) return;
    this->m_bg.m_image = background_;
    this->get_document()->container()->load_image(background_.c_str(), nullptr, true);
  }

 private:
  LayoutBudget& budget_;
  std::string background_;
};

// The engine takes the widths of cells for the least they need, so cells that ask for more than there is make
// their table wider than it says. This one takes the excess from the columns that are wider than their
// content.
class FittingTable : public Hinted<litehtml::el_table> {
 public:
  using Hinted::Hinted;

  int render(int x, int y, int max_width, bool second_pass) override {
    int result = Hinted::render(x, y, max_width, second_pass);
    const litehtml::css_length wanted = get_css_width();
    if (wanted.is_predefined() || wanted.units() != litehtml::css_units_px) return result;
    for (int tries = 0; tries < 4; ++tries) {
      const int excess = m_pos.width + m_padding.width() + m_borders.width() - static_cast<int>(wanted.val());
      if (excess <= 0 || !Narrow(excess)) break;
      result = Hinted::render(x, y, max_width, second_pass);
    }
    return result;
  }

 private:
  // The width that the cells of a column ask for; 0 when they ask for none or their content needs it all.
  int SpareOf(int column) {
    int asked = 0;
    for (int row = 0; row < m_grid->rows_count(); ++row) {
      const litehtml::table_cell* cell = m_grid->cell(column, row);
      if (!cell || !cell->el || cell->colspan > 1) continue;
      const litehtml::css_length width = cell->el->get_css_width();
      if (!width.is_predefined() && width.units() == litehtml::css_units_px) {
        asked = std::max(asked, static_cast<int>(width.val()));
      }
    }
    return m_grid->column(column).width <= asked ? asked : 0;
  }

  void SetWidth(int column, int pixels) {
    litehtml::css_length width;
    width.set_value(static_cast<float>(std::max(1, pixels)), litehtml::css_units_px);
    m_grid->column(column).css_width = width;  // what the grid took from the cells at first
    for (int row = 0; row < m_grid->rows_count(); ++row) {
      const litehtml::table_cell* cell = m_grid->cell(column, row);
      if (cell && cell->el && cell->colspan <= 1) cell->el->set_css_width(width);
    }
  }

  // False when no column can give anything.
  bool Narrow(int excess) {
    if (!m_grid) return false;
    std::vector<std::pair<int, int>> spare;  // column, width
    for (int column = 0; column < m_grid->cols_count(); ++column) {
      if (const int asked = SpareOf(column); asked > 1) spare.emplace_back(column, asked);
    }
    const int count = static_cast<int>(spare.size());
    for (int i = 0; i < count; ++i) {
      const auto [column, asked] = spare[static_cast<std::size_t>(i)];
      SetWidth(column, asked - excess / count - (i < excess % count ? 1 : 0));
    }
    return count > 0;
  }
};

using Maker = std::shared_ptr<litehtml::element> (*)(const std::shared_ptr<litehtml::document>&,
                                                     LayoutBudget&);

template <class Element>
std::shared_ptr<litehtml::element> MakeOwn(const std::shared_ptr<litehtml::document>& document,
                                           LayoutBudget& budget) {
  return std::make_shared<Element>(document, budget);
}

template <class Base>
std::shared_ptr<litehtml::element> Make(const std::shared_ptr<litehtml::document>& document,
                                        LayoutBudget& budget) {
  return MakeOwn<Hinted<Base>>(document, budget);
}

}  // namespace

std::shared_ptr<litehtml::element> CreateHtmlElement(const std::string& tag,
                                                     const std::shared_ptr<litehtml::document>& document,
                                                     LayoutBudget& budget) {
  if (!budget.SpendElement()) return Make<litehtml::html_tag>(document, budget);
  static const std::map<std::string, Maker, std::less<>> makers = {
      {"a", Make<litehtml::el_anchor>},  {"body", Make<litehtml::el_body>}, {"br", Make<litehtml::el_break>},
      {"img", Make<litehtml::el_image>}, {"link", Make<litehtml::el_link>}, {"table", MakeOwn<FittingTable>},
      {"tr", Make<litehtml::el_tr>},
  };
  if (tag == "style") return nullptr;
  const auto maker = makers.find(tag);
  return maker == makers.end() ? Make<litehtml::html_tag>(document, budget) : maker->second(document, budget);
}

}  // namespace skyloft
