// The text of a scroller as it is shown.
#pragma once

#include <string>
#include <string_view>

namespace skyloft {

// The text without its tags: those that part lines or blocks become a blank, the others nothing.
// A line end or another control character becomes a blank. A "<" is text unless a tag begins there and ends
// with a ">". Entities stay.
std::string WithoutTags(std::string_view html);

}  // namespace skyloft
