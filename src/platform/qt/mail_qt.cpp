#include "platform/qt/mail_qt.h"

#include <arpa/inet.h>
#include <curl/curl.h>

#include <memory>
#include <thread>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <QUrl>

#include "base/guard.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/mail_message.h"
#include "platform/qt/text_qt.h"

namespace skyloft {
namespace {

constexpr int kPatience = 30000;  // milliseconds

// One message on its way. The thread that carries it and the caller that waits share it, so that neither
// depends on the other's end. `taken` and `waiting` belong to the caller's thread.
struct Delivery {
  std::string relay, user, password, from, to, message;
  bool near = false;  // the relay is on this computer
  int milliseconds = 0;
  size_t sent = 0;
  bool taken = false;
  QEventLoop* waiting = nullptr;
};

size_t GiveMessage(char* buffer, size_t size, size_t count, void* self) {
  auto* delivery = static_cast<Delivery*>(self);
  const size_t given = delivery->message.copy(buffer, size * count, delivery->sent);
  delivery->sent += given;
  return given;
}

CURLcode Perform(CURL* easy, Delivery& delivery, curl_slist* recipients) {
  curl_easy_setopt(easy, CURLOPT_URL, delivery.relay.c_str());
  curl_easy_setopt(easy, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  curl_easy_setopt(easy, CURLOPT_PROXY, "");
  curl_easy_setopt(easy, CURLOPT_USE_SSL, long{CURLUSESSL_TRY});
  if (delivery.near) {
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYPEER, 0L);
    curl_easy_setopt(easy, CURLOPT_SSL_VERIFYHOST, 0L);
  }
  if (!delivery.user.empty()) {
    curl_easy_setopt(easy, CURLOPT_USERNAME, delivery.user.c_str());
    curl_easy_setopt(easy, CURLOPT_PASSWORD, delivery.password.c_str());
  }
  curl_easy_setopt(easy, CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(easy, CURLOPT_QUICK_EXIT, 1L);
  curl_easy_setopt(easy, CURLOPT_TIMEOUT_MS, long{delivery.milliseconds});
  curl_easy_setopt(easy, CURLOPT_MAIL_FROM, delivery.from.c_str());
  curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, recipients);
  curl_easy_setopt(easy, CURLOPT_UPLOAD, 1L);
  curl_easy_setopt(easy, CURLOPT_READFUNCTION, &GiveMessage);
  curl_easy_setopt(easy, CURLOPT_READDATA, &delivery);
  return curl_easy_perform(easy);
}

// On a thread of its own: libcurl's farewell to a mail server waits for the answer. The caller hears of the
// end before it.
void Carry(const std::shared_ptr<Delivery>& delivery) {
  CURL* const easy = curl_easy_init();
  curl_slist* const recipients = curl_slist_append(nullptr, delivery->to.c_str());
  const bool taken = easy && recipients && Perform(easy, *delivery, recipients) == CURLE_OK;
  QMetaObject::invokeMethod(QCoreApplication::instance(), [delivery, taken] {
    delivery->taken = taken;
    if (delivery->waiting) delivery->waiting->quit();
  });
  curl_slist_free_all(recipients);
  curl_easy_cleanup(easy);
}

// Waits, while events go on, until the message is taken or not. Nobody waits any more when this returns.
bool Await(Delivery& delivery) {
  QEventLoop loop;
  delivery.waiting = &loop;
  QTimer::singleShot(delivery.milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
  delivery.waiting = nullptr;
  return delivery.taken;
}

std::shared_ptr<Delivery> Prepare(const MailRelay& relay, const Mail& mail, int milliseconds) {
  const QUrl url(ToQt(relay.address), QUrl::StrictMode);
  const bool mails = url.scheme() == "smtp" || url.scheme() == "smtps";
  if (!url.isValid() || !mails || url.host().isEmpty()) throw RuntimeError("no mail relay");
  auto delivery = std::make_shared<Delivery>();
  delivery->message = MailMessage(mail, ToMoment(Now()));
  delivery->relay = url.toEncoded().toStdString();
  delivery->near = IsThisComputer(url.host().toStdString());
  delivery->user = ToUtf8(relay.user);
  delivery->password = ToUtf8(relay.password);
  delivery->from = '<' + mail.from + '>';
  delivery->to = '<' + mail.to + '>';
  delivery->milliseconds = milliseconds;
  return delivery;
}

}  // namespace

bool IsThisComputer(const std::string& host) {
  in_addr address{};
  const bool is_address = inet_pton(AF_INET, host.c_str(), &address) == 1;
  return (is_address && ntohl(address.s_addr) >> 24 == 127) || host == "localhost" || host == "::1";
}

void SendMail(const MailRelay& relay, const Mail& mail) { SendMailWithin(relay, mail, kPatience); }

void SendMailWithin(const MailRelay& relay, const Mail& mail, int milliseconds) {
  static bool under_way = false;
  if (under_way) throw RuntimeError("a mail is under way");
  const auto delivery = Prepare(relay, mail, milliseconds);
  struct Way {
    Way() { under_way = true; }
    ~Way() { under_way = false; }
  } way;
  std::thread(Carry, delivery).detach();
  if (!Await(*delivery)) throw RuntimeError("the mail was not taken");
}

}  // namespace skyloft
