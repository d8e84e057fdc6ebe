// What a page holds for those who read it without a mouse or without eyes.
#pragma once

#include <QRect>
#include <QString>
#include <vector>

namespace litehtml {
class document;
}

namespace skyloft {

struct HtmlLink {
  QString address;  // as the page writes it
  QRect place;      // pixels of the document; empty for a link without anything to see
};
// In the order of the page.
std::vector<HtmlLink> LinksOf(litehtml::document& document);

// The page's words in their order, with single blanks between them.
QString WordsOf(litehtml::document& document);

}  // namespace skyloft
