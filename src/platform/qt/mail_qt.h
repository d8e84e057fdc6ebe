// The send of a mail, for the patience that is asked for.
#pragma once

#include <string>

#include "platform/mail.h"

namespace skyloft {

// Whether a host is this computer: "localhost", or an address of the loopback.
bool IsThisComputer(const std::string& host);

// SendMail within so many milliseconds.
void SendMailWithin(const MailRelay& relay, const Mail& mail, int milliseconds);

}  // namespace skyloft
