#include "platform/qt/mail_message.h"

#include <gtest/gtest.h>

#include <QTimeZone>

#include "base/guard.h"
#include "base/text.h"
#include "platform/qt/mail_testing.h"

namespace skyloft {
namespace {

const QDateTime kMoment({2003, 3, 7}, {14, 5, 9}, Qt::OffsetFromUTC, -6 * 3600);

Message Written(const Mail& mail) { return TakeApart(MailMessage(mail, kMoment)); }

TEST(MailMessage, HasItsHeaders) {
  Mail mail = SampleMail();
  mail.reply_to = "other@example.com";
  mail.receipt = 1;
  const Message message = Written(mail);
  const std::map<std::string, std::string> expected = {{"Date", "07 Mar 2003 14:05:09 -0600"},
                                                       {"From", "\"Skyloft\" <user@example.com>"},
                                                       {"To", "\"Skyloft Subscriber\" <user@example.com>"},
                                                       {"Reply-To", "<other@example.com>"},
                                                       {"Subject", "SKYLOFT ALERT"},
                                                       {"Organization", "Skyloft"},
                                                       {"X-Priority", "1"},
                                                       {"Disposition-Notification-To", "<user@example.com>"},
                                                       {"MIME-Version", "1.0"},
                                                       {"Content-Type", "text/plain; charset=UTF-8"},
                                                       {"Content-Transfer-Encoding", "quoted-printable"}};
  for (const auto& [name, value] : expected) EXPECT_EQ(message.headers.at(name), value);
  EXPECT_EQ(message.headers.size(), expected.size() + 1);
  const std::string id = message.headers.at("Message-ID");
  EXPECT_TRUE(id.starts_with('<') && id.ends_with("@example.com>")) << id;
  EXPECT_NE(id, Written(mail).headers.at("Message-ID"));
}

TEST(MailMessage, LeavesOutWhatIsEmpty) {
  Mail mail = SampleMail();
  mail.organization = "";
  mail.from_name = "";
  const Message message = Written(mail);
  for (const char* name : {"Organization", "Reply-To", "Disposition-Notification-To"})
    EXPECT_FALSE(message.headers.contains(name)) << name;
  EXPECT_EQ(message.headers.at("From"), "<user@example.com>");
}

TEST(MailMessage, RefusesAnAddressThatIsNone) {
  const std::string bad[] = {"",
                             "a@b\r\nBcc: c@d",
                             "a@b\n",
                             "a@b\r",
                             "a b@c",
                             "a\tb@c",
                             " a@b",
                             "<a@b>",
                             "a@b>",
                             "a@b,c@d",
                             "a@b;c@d",
                             "\"a\"@b",
                             "a(b)@c",
                             "a\\@b",
                             "j\xFCrgen@b",
                             std::string("a\0@b", 4),
                             "a@b\x7F",
                             std::string(255, 'a')};
  for (const std::string& address : bad) {
    for (std::string Mail::*const field : {&Mail::from, &Mail::to, &Mail::reply_to}) {
      if (address.empty() && field == &Mail::reply_to) continue;
      Mail mail = SampleMail();
      mail.*field = address;
      EXPECT_THROW(MailMessage(mail, kMoment), RuntimeError) << address;
    }
  }
  Mail longest = SampleMail();
  longest.to = std::string(254, 'a');
  EXPECT_EQ(Written(longest).headers.at("To"), "\"Skyloft Subscriber\" <" + longest.to + ">");
}

TEST(MailMessage, NoHeaderTextCanAddAHeader) {
  for (std::string Mail::*const field :
       {&Mail::from_name, &Mail::to_name, &Mail::subject, &Mail::organization}) {
    Mail mail = SampleMail();
    mail.*field = "x\r\nBcc: victim@example.com\r\n\r\nbody\n\r";
    const Message message = Written(mail);
    EXPECT_FALSE(message.headers.contains("Bcc"));
    EXPECT_EQ(message.headers.size(), Written(SampleMail()).headers.size());
    EXPECT_EQ(message.body, "Take shelter.\r\n");
  }
}

TEST(MailMessage, WritesNamesThatAreNotPlainSoThatTheyReadBack) {
  Mail mail = SampleMail();
  mail.from_name = "A \"b\" \\ c, d";
  EXPECT_EQ(Written(mail).headers.at("From"), "\"A \\\"b\\\" \\\\ c, d\" <user@example.com>");
  mail.from_name = "J\xFCrgen \x80";
  const std::string from = Written(mail).headers.at("From");
  EXPECT_EQ(UndoWords(from.substr(0, from.find(" <"))), "J\xC3\xBCrgen \xE2\x82\xAC");
}

TEST(MailMessage, FoldsALongSubject) {
  for (const std::string& letters : {std::string(300, 'x'), std::string(2000, '\xE9')}) {
    Mail mail = SampleMail();
    mail.subject = letters;
    const std::string message = MailMessage(mail, kMoment);
    EXPECT_EQ(UndoWords(TakeApart(message).headers.at("Subject")), ToUtf8(letters));
    for (const QString& line : QString::fromStdString(message).split("\r\n")) EXPECT_LE(line.size(), 76);
  }
}

TEST(MailMessage, SubjectThatLooksEncodedReadsBackAsItWas) {
  Mail mail = SampleMail();
  mail.subject = "=?UTF-8?B?eA==?=";
  EXPECT_EQ(UndoWords(Written(mail).headers.at("Subject")), mail.subject);
}

TEST(MailMessage, BodyReadsBack) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "\r\n"},
      {"one\r\ntwo\r\n", "one\r\ntwo\r\n\r\n"},
      {"one\rtwo\nthree", "one\r\ntwo\r\nthree\r\n"},
      {".\r\n..\r\n.x", ".\r\n..\r\n.x\r\n"},
      {"a = b =20 \t\r\n end ", "a = b =20 \t\r\n end \r\n"},
      {"\xE9 \x80 \x93", "\xC3\xA9 \xE2\x82\xAC \xE2\x80\x9C\r\n"},
      {std::string("\0\x01\x1B", 3), std::string("\0\x01\x1B\r\n", 5)},
      {std::string(5000, 'x'), std::string(5000, 'x') + "\r\n"},
  };
  for (const auto& [body, text] : cases) {
    const Message message = Written(SampleMail(body));
    EXPECT_EQ(message.body, text);
    for (const QString& line : QString::fromStdString(message.raw_body).split("\r\n")) {
      EXPECT_LE(line.size(), 76);
      EXPECT_FALSE(line.endsWith(' '));
      for (const QChar c : line) EXPECT_TRUE(c >= ' ' && c < QChar(127)) << int{c.unicode()};
    }
  }
}

}  // namespace
}  // namespace skyloft
