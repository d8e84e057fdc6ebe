// How elements look before a page says anything: the rules of a browser of the early 2000s.
#pragma once

namespace skyloft {

extern const char kMasterStyle[];

}  // namespace skyloft
