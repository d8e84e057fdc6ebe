// A real mail server for tests, a process of its own on loopback that keeps what it is given.
#pragma once

#include <string>
#include <vector>

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace skyloft {

class SmtpSink {
 public:
  // How the server behaves: "" takes every message; "refuse-recipient"; "hang" never says a word, "hang-quit"
  // not even good-bye; "drip" says a byte each 100 ms; "starttls" offers encryption and then has none; "auth"
  // asks for a name and takes any.
  explicit SmtpSink(const QString& behaviour = {});
  ~SmtpSink();
  SmtpSink(const SmtpSink&) = delete;
  SmtpSink& operator=(const SmtpSink&) = delete;

  std::string Address() const { return "smtp://127.0.0.1:" + port_; }
  // The messages taken so far, in their order, as they were before the client doubled dots.
  std::vector<std::string> Messages() const;
  // All lines that clients said outside their messages.
  std::vector<std::string> Commands() const;

 private:
  QTemporaryDir folder_;
  QProcess process_;
  std::string port_;
};

}  // namespace skyloft
