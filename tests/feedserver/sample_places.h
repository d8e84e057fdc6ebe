// Towns of every zone and every corner of the country, for tests that would take too long with all.
#pragma once

namespace skyloft::feed {

inline constexpr const char* kSampleZips[] = {"66044", "33131", "80202", "98101", "04101", "85003",
                                              "99501", "96813", "00901", "60601", "10001", "90012"};

}  // namespace skyloft::feed
