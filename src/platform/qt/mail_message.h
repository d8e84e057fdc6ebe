// A mail as it goes over the wire.
#pragma once

#include <string>

#include <QDateTime>

#include "platform/mail.h"

namespace skyloft {

// The whole message with CRLF line ends: its headers by RFC 5322, texts in them that are not short plain
// ASCII by RFC 2047, the body in UTF-8 as quoted-printable by RFC 2045; ASCII alone, no line longer than 76
// but for that of a long address.
// Control characters of a header's text become blanks. Raises when an address is none.
std::string MailMessage(const Mail& mail, const QDateTime& moment);

}  // namespace skyloft
