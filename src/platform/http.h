// Blocking fetches over HTTP. A call returns when the reply is complete or has failed; events go on
// meanwhile, so a timer or a user's act can run inside it. No call is queued: whoever calls tests
// HttpControl::Idle first.
#pragma once

#include <string>

#include "platform/controls.h"

namespace skyloft {

// Fetches control.Url into `text`, or into the file `path` (the program's own path), which appears only when
// it is whole. Returns false, and touches neither, on a failed connection, a final status other than 200, a
// time-out, a reply beyond the size limit or an address that is none. control.State is 1 meanwhile.
bool HttpGet(HttpControl& control, std::string& text);
bool HttpGetFile(HttpControl& control, const std::string& path);

// Brings up a dial-up line: flags 2 without asking, 1 asking the user. Nothing to do on a computer that is
// always connected.
void DialInternet(int flags);

}  // namespace skyloft
