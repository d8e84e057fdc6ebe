// The banners of the companion server in the places where the program shows them.
#include <gtest/gtest.h>

#include <vector>

#include "feedserver/answer.h"
#include "feedserver/scan.h"
#include "html_testing.h"

namespace skyloft::testing {
namespace {

// The places of the banners of a type, in pixels.
std::vector<QSize> PlacesOf(const std::string& type) {
  if (type == "0") return {{120, 26}, {400, 40}};
  if (type == "1") return {{236, 26}};
  if (type == "3") return {{800, 35}, {1920, 35}};
  if (type == "4") return {{90, 35}};
  return {};  // the strip has plain text
}

TEST(Banners, FitTheirPlaces) {
  Application();
  const auto messages =
      feed::Scan(feed::Answer({"/messages.xml.1", "", MakeDate(2003, 3, 7, 20, 5)}, {}).body);
  const auto types = feed::Values(messages, "type"), texts = feed::Values(messages, "messagetext");
  ASSERT_EQ(types.size(), texts.size());
  int shown = 0;
  for (std::size_t i = 0; i < types.size(); ++i) {
    for (const QSize& place : PlacesOf(types[i])) {
      HtmlView view(HtmlServices{});
      view.resize(place);
      view.SetDocument(texts[i]);
      EXPECT_LE(view.DocumentSize().width(), place.width()) << texts[i];
      EXPECT_LE(view.DocumentSize().height(), place.height()) << texts[i];
      EXPECT_LE(Count(Grab(view), Qt::white), place.width() * place.height() / 4)
          << "its own background: " << texts[i];
      ++shown;
    }
  }
  EXPECT_GE(shown, 8);
}

}  // namespace
}  // namespace skyloft::testing
