// The user's address, typed twice.
#pragma once

#include <string>

namespace skyloft {

// Whether both are there and the same, case included; tells the user if not. Nothing else of an address is
// looked at.
bool CheckEmailAddresses(const std::string& first, const std::string& second);

}  // namespace skyloft
