// What pages may use of the program: its files, its fetches, its sounds, the desktop's browser.
#pragma once

#include <functional>
#include <string>

#include "platform/qt/html/html_view.h"

namespace skyloft {

HtmlServices PageServices();

// The document at an address: of a file at once, of a server later; "" when there is none.
void FetchPage(const std::string& address, const std::function<void(std::string)>& done);

}  // namespace skyloft
