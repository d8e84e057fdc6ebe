// What pages may use of the program: its files, its fetches, the desktop's browser.
#pragma once

#include "platform/qt/html/html_view.h"

namespace skyloft {

HtmlServices PageServices();

}  // namespace skyloft
