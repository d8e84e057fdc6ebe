// A mail for the tests, and a delivered message taken apart again.
#pragma once

#include <map>
#include <string>

#include <QByteArray>
#include <QString>

#include "platform/mail.h"

namespace skyloft {

inline Mail SampleMail(const std::string& body = "Take shelter.") {
  return {.from = "user@example.com",
          .from_name = "Skyloft",
          .to = "user@example.com",
          .to_name = "Skyloft Subscriber",
          .subject = "SKYLOFT ALERT",
          .organization = "Skyloft",
          .reply_to = "",
          .body = body};
}

struct Message {
  std::map<std::string, std::string> headers;  // unfolded
  std::string raw_body;
  std::string body;  // quoted-printable undone; UTF-8 with CRLF
};

inline std::string UndoQuotedPrintable(const std::string& quoted) {
  std::string text;
  for (size_t i = 0; i < quoted.size(); ++i) {
    if (quoted[i] != '=') {
      text += quoted[i];
      continue;
    }
    const std::string code = quoted.substr(i + 1, 2);
    if (code != "\r\n") text += QByteArray::fromHex(QByteArray::fromStdString(code)).toStdString();
    i += 2;
  }
  return text;
}

inline Message TakeApart(const std::string& message) {
  const size_t end = message.find("\r\n\r\n");
  Message parts;
  QString head = QString::fromStdString(message.substr(0, end));
  for (const QString& header : head.replace("\r\n ", " ").split("\r\n"))
    parts.headers[header.section(": ", 0, 0).toStdString()] += header.section(": ", 1).toStdString();
  parts.raw_body = message.substr(end + 4);
  parts.body = UndoQuotedPrintable(parts.raw_body);
  return parts;
}

// The text of encoded words, in UTF-8.
inline std::string UndoWords(const std::string& words) {
  QByteArray text;
  for (const QString& word : QString::fromStdString(words).split(' '))
    text += QByteArray::fromBase64(word.section('?', 3, 3).toLatin1());
  return text.toStdString();
}

}  // namespace skyloft
