// Mail by way of a relay: a server that takes messages and sends them on.
#pragma once

#include <string>

namespace skyloft {

// Texts are windows-1252. An address is 1 to 254 printable ASCII characters without blanks and without any of
// <>(),;"\ ; an empty reply_to or organization is left out of the message.
struct Mail {
  std::string from, from_name;  // the sender's address and the name shown with it
  std::string to, to_name;
  std::string subject;
  std::string organization;
  std::string reply_to;  // an address
  std::string body;      // plain text; any kind of line end
  int priority = 1;      // 1 the highest, 5 the lowest
  int receipt = 0;       // 1 asks the reader's program to tell `from` that the message was shown
};

struct MailRelay {
  std::string address;         // "smtp://localhost:25", or smtps
  std::string user, password;  // no user: the relay asks for none
};

// Hands the message to the relay, encrypted where the relay offers it; the certificate of a relay on this
// computer is not looked at. Blocks its caller while events go on, 30 seconds at most. Raises when the
// message was not taken, whatever the reason: an address that is none, a relay that is none, cannot be
// reached, refuses or is too slow, another send under way.
void SendMail(const MailRelay& relay, const Mail& mail);

}  // namespace skyloft
