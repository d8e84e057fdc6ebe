#include "base/guard.h"
#include "platform/doubles.h"
#include "platform/mail.h"

namespace skyloft {

void SendMail(const MailRelay& relay, const Mail& mail) {
  Doubles.mails.emplace_back(relay, mail);
  if (Doubles.mail_failure.Due()) throw RuntimeError("the mail was not taken");
}

}  // namespace skyloft
