// The send of a mail, for the patience that is asked for.
#pragma once

#include "platform/mail.h"

namespace skyloft {

// SendMail within so many milliseconds.
void SendMailWithin(const MailRelay& relay, const Mail& mail, int milliseconds);

}  // namespace skyloft
