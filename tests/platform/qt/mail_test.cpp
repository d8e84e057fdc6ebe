#include "platform/qt/mail_qt.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

#include <algorithm>

#include "base/guard.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/mail_testing.h"
#include "platform/smtp_sink.h"

namespace skyloft {
namespace {

class RealMail : public ::testing::Test {
 protected:
  static bool Send(const std::string& relay, const Mail& mail, int milliseconds = 10000) {
    return Guarded([&] { SendMailWithin({relay, "", ""}, mail, milliseconds); });
  }
  // How long a send that fails takes, in milliseconds.
  static qint64 FailsAfter(const std::string& relay, int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(Send(relay, SampleMail(), milliseconds));
    return clock.elapsed();
  }
  static bool Said(const SmtpSink& sink, const std::string& line) {
    const auto commands = sink.Commands();
    return std::find(commands.begin(), commands.end(), line) != commands.end();
  }

  int argc = 0;
  QCoreApplication application{argc, nullptr};
};

TEST_F(RealMail, ReachesTheServerWithItsEnvelopeAndHeaders) {
  const SmtpSink sink;
  StopClock(MakeDate(2003, 3, 7, 14, 5, 9));
  ASSERT_TRUE(SetZone("America/Chicago"));
  SendMail({sink.Address(), "", ""}, SampleMail());
  ASSERT_EQ(sink.Messages().size(), 1u);
  const Message message = TakeApart(sink.Messages()[0]);
  EXPECT_EQ(message.headers.at("Subject"), "SKYLOFT ALERT");
  EXPECT_EQ(message.headers.at("Date"), "07 Mar 2003 14:05:09 -0600");
  EXPECT_EQ(message.body, "Take shelter.\r\n");
  EXPECT_TRUE(Said(sink, "MAIL FROM:<user@example.com>"));
  EXPECT_TRUE(Said(sink, "RCPT TO:<user@example.com>"));
}

TEST_F(RealMail, BodyArrivesWhole) {
  const SmtpSink sink;
  std::string long_body;
  for (int i = 0; long_body.size() < 100'000; ++i) long_body += "Line " + std::to_string(i) + "\r\n";
  const std::pair<std::string, std::string> cases[] = {
      {"one\r\ntwo\r\nthree", "one\r\ntwo\r\nthree\r\n"},
      {"before\r\n.\r\nafter\r\n..", "before\r\n.\r\nafter\r\n..\r\n"},
      {"caf\xE9 \x80", "caf\xC3\xA9 \xE2\x82\xAC\r\n"},
      {long_body, long_body + "\r\n"},
      {std::string(100'000, 'x'), std::string(100'000, 'x') + "\r\n"},
  };
  for (const auto& [body, text] : cases) {
    ASSERT_TRUE(Send(sink.Address(), SampleMail(body)));
    EXPECT_EQ(TakeApart(sink.Messages().back()).body, text);
  }
  EXPECT_EQ(sink.Messages().size(), std::size(cases));
}

TEST_F(RealMail, ThatIsNotTakenFails) {
  EXPECT_FALSE(Send("smtp://127.0.0.1:1", SampleMail())) << "nobody listens";
  const SmtpSink sink("refuse-recipient");
  EXPECT_FALSE(Send(sink.Address(), SampleMail()));
  EXPECT_TRUE(Said(sink, "RCPT TO:<user@example.com>"));
  EXPECT_TRUE(sink.Messages().empty());
}

TEST_F(RealMail, RelayThatIsNoneFails) {
  for (const char* relay : {"", "localhost", "127.0.0.1:25", "http://127.0.0.1:25", "file:///etc/passwd",
                            "smtp://", "smtp://a b", "smtp://127.0.0.1:25\r\nX"}) {
    EXPECT_FALSE(Send(relay, SampleMail())) << relay;
  }
}

TEST_F(RealMail, AddressThatIsNoneFailsBeforeAWordIsSaid) {
  const SmtpSink sink;
  for (const char* address : {"", "a@b\r\nRCPT TO:<victim@example.com>", "a@b>\r\nDATA", "a@b c", "<a@b>"}) {
    Mail mail = SampleMail();
    mail.to = mail.from = address;
    EXPECT_FALSE(Send(sink.Address(), mail)) << address;
  }
  EXPECT_TRUE(sink.Commands().empty());
}

TEST_F(RealMail, ServerThatHangsOrDripsEndsAtTheLimitWhileEventsGoOn) {
  for (const char* behaviour : {"hang", "drip"}) {
    const SmtpSink sink(behaviour);
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(10);
    const qint64 elapsed = FailsAfter(sink.Address(), 500);
    EXPECT_GE(elapsed, 450) << behaviour;
    EXPECT_LE(elapsed, 5000) << behaviour;
    EXPECT_GE(ticks, 10) << behaviour;
    EXPECT_TRUE(sink.Messages().empty());
  }
}

TEST_F(RealMail, IsDoneWhenItIsTakenWhateverTheFarewell) {
  const SmtpSink sink("hang-quit");
  QElapsedTimer clock;
  clock.start();
  EXPECT_TRUE(Send(sink.Address(), SampleMail(), 20000));
  EXPECT_LE(clock.elapsed(), 10000);
  EXPECT_EQ(sink.Messages().size(), 1u);
}

TEST_F(RealMail, SecondOneInsideTheFirstFailsAtOnceAndALaterOneGoes) {
  const SmtpSink hanging("hang");
  const SmtpSink sink;
  int refused = 0;
  QTimer::singleShot(50, [&] {
    QElapsedTimer clock;
    clock.start();
    if (!Send(sink.Address(), SampleMail())) ++refused;
    EXPECT_LE(clock.elapsed(), 200);
  });
  EXPECT_FALSE(Send(hanging.Address(), SampleMail(), 600));
  EXPECT_EQ(refused, 1);
  EXPECT_TRUE(sink.Commands().empty());
  EXPECT_TRUE(Send(sink.Address(), SampleMail()));
  EXPECT_EQ(sink.Messages().size(), 1u);
}

TEST_F(RealMail, AsksForEncryptionWhereItIsOfferedAndGoesOnWithoutIt) {
  const SmtpSink sink("starttls");
  EXPECT_TRUE(Send(sink.Address(), SampleMail()));
  EXPECT_TRUE(Said(sink, "STARTTLS"));
  EXPECT_EQ(sink.Messages().size(), 1u);
}

TEST(MailRelays, OnThisComputerAreLocalhostAndTheAddressesOfTheLoopback) {
  for (const char* host : {"localhost", "127.0.0.1", "127.1.2.3", "::1"})
    EXPECT_TRUE(IsThisComputer(host)) << host;
  for (const char* host : {"127.0.0.1.example.com", "127.example.com", "localhost.example.com", "128.0.0.1",
                           "10.127.0.1", "::2", ""}) {
    EXPECT_FALSE(IsThisComputer(host)) << host;
  }
}

TEST_F(RealMail, TellsTheRelayWhoAsks) {
  const SmtpSink sink("auth");
  SendMailWithin({sink.Address(), "us\xE9r", "secret"}, SampleMail(), 10000);
  const QByteArray words = QByteArray("\0us\xC3\xA9r\0secret", 13).toBase64();
  EXPECT_TRUE(Said(sink, words.toStdString()));
  EXPECT_EQ(sink.Messages().size(), 1u);
}

}  // namespace
}  // namespace skyloft
