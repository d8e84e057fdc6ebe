#include "alerts/delivery.h"

#include "alert_station.h"
#include "settings/settings.h"

namespace skyloft {
namespace {

class DeliveryTest : public AlertStation {};

TEST_F(DeliveryTest, AMailGoesFromAndToTheUsersOwnAddressAsPlainText) {
  Email("One.\r\nTwo.\r\n");
  ASSERT_EQ(Doubles.mails.size(), 1u);
  const Mail& mail = Doubles.mails[0].second;
  EXPECT_EQ(mail.from, "me@home.example");
  EXPECT_EQ(mail.to, "me@home.example");
  EXPECT_EQ(mail.from_name, "Skyloft");
  EXPECT_EQ(mail.to_name, "Skyloft Subscriber");
  EXPECT_EQ(mail.organization, "Skyloft Subscriber");
  EXPECT_EQ(mail.subject, "SKYLOFT ALERT");
  EXPECT_EQ(mail.body, "One.\r\nTwo.\r\n");
  EXPECT_EQ(mail.priority, 1);
  EXPECT_EQ(mail.receipt, 0);
  EXPECT_EQ(mail.reply_to, "");
}

TEST_F(DeliveryTest, ThePageOfAMailIsBuiltWithoutEscapingAnything) {
  EXPECT_EQ(EmailPage("a < b\r\nc"),
            "<HTML>\r\n<BODY bgColor=#ffffff>\r\n"
            "<DIV><font face='Tahoma' color='#000000'><b>a < b\r\nc </FONT></b></DIV>\r\n"
            "\r\n</BODY>\r\n</HTML>\r\n");
}

TEST_F(DeliveryTest, AnEmptyAddressIsHandedOnEmpty) {
  SystemOptionsForm.Email1Value.Text = "";
  Email("text");
  ASSERT_EQ(Doubles.mails.size(), 1u);
  EXPECT_EQ(Doubles.mails[0].second.from, "");
  EXPECT_EQ(Doubles.mails[0].second.to, "");
}

TEST_F(DeliveryTest, TheWishForNewsByMailHasNoPartInIt) {
  for (const bool news : {false, true}) {
    SystemOptionsForm.EmailOptionValue.Checked = news;
    Email("text");
  }
  EXPECT_EQ(Doubles.mails.size(), 2u);
}

TEST_F(DeliveryTest, TheRelayIsAnOption) {
  Email("text");
  EXPECT_EQ(Doubles.mails[0].first.address, "smtp://localhost:25");
  EXPECT_EQ(Doubles.mails[0].first.user, "");
  Doubles.Store(kOptionsKey, "SmtpRelay", "smtps://mail.home.example");
  Doubles.Store(kOptionsKey, "SmtpUser", "me");
  Doubles.Store(kOptionsKey, "SmtpPassword", "secret");
  Email("text");
  EXPECT_EQ(Doubles.mails[1].first.address, "smtps://mail.home.example");
  EXPECT_EQ(Doubles.mails[1].first.user, "me");
  EXPECT_EQ(Doubles.mails[1].first.password, "secret");
}

TEST_F(DeliveryTest, AMailThatFailsIsItsCallersFailure) {
  Doubles.mail_failure.at = 1;
  EXPECT_THROW(Email("text"), RuntimeError);
}

TEST_F(DeliveryTest, NothingIsSpokenUnlessTheOptionIs1) {
  for (const char* value : {"", "0", "True"}) {
    Doubles.Store(kOptionsKey, "Speak", value);
    SpeakAlert("text");
  }
  EXPECT_TRUE(Doubles.spoken.empty());
  Doubles.Store(kOptionsKey, "Speak", "1");
  SpeakAlert("text");
  EXPECT_EQ(Doubles.spoken, std::vector<std::string>{"text"});
}

}  // namespace
}  // namespace skyloft
