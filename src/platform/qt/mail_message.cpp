#include "platform/qt/mail_message.h"

#include <algorithm>
#include <string_view>

#include <QByteArray>
#include <QUuid>

#include "base/guard.h"
#include "base/text.h"

namespace skyloft {
namespace {

constexpr size_t kLongestAddress = 254;  // RFC 5321, 4.5.3.1.3, without the brackets
constexpr size_t kPlainText = 60;        // characters of a header's text that needs no folding
constexpr size_t kWordText = 12;         // characters of an encoded word: 36 bytes of UTF-8, 48 of base64
constexpr size_t kBodyLine = 73;         // RFC 2045: 76 with the mark of a soft end, less a last escape
constexpr char kHex[] = "0123456789ABCDEF";

bool IsPrintable(char c) { return c > ' ' && c < 127; }

const std::string& Checked(const std::string& address) {
  const bool plain = std::all_of(address.begin(), address.end(), [](char c) {
    return IsPrintable(c) && std::string_view("<>(),;\"\\").find(c) == std::string_view::npos;
  });
  if (address.empty() || address.size() > kLongestAddress || !plain) throw RuntimeError("no mail address");
  return address;
}

std::string WithoutControls(std::string text) {
  std::replace_if(
      text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 32 || c == 127; }, ' ');
  return text;
}

// What reads back as itself when it is written as it stands.
bool IsPlain(const std::string& text) {
  return text.size() <= kPlainText && IsAscii(text) && text.find("=?") == std::string::npos &&
         !text.starts_with(' ') && !text.ends_with(' ');
}

// Encoded words, a line each.
std::string EncodedWords(const std::string& text) {
  std::string words;
  for (size_t at = 0; at < text.size(); at += kWordText) {
    const QByteArray part = QByteArray::fromStdString(ToUtf8(text.substr(at, kWordText)));
    words += (at == 0 ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + part.toBase64().toStdString() + "?=";
  }
  return words;
}

std::string HeaderText(const std::string& raw) {
  const std::string text = WithoutControls(raw);
  return IsPlain(text) ? text : EncodedWords(text);
}

std::string NameText(const std::string& raw) {
  const std::string name = WithoutControls(raw);
  if (!IsPlain(name)) return EncodedWords(name);
  std::string quoted = "\"";
  for (const char c : name) {
    if (c == '"' || c == '\\') quoted += '\\';
    quoted += c;
  }
  return quoted + '"';
}

// The address stands on a line of its own, as both may be long.
std::string Mailbox(const std::string& name, const std::string& address) {
  return (name.empty() ? "" : NameText(name) + "\r\n ") + '<' + Checked(address) + '>';
}

std::string NewMessageID(const std::string& from) {
  const size_t at = from.rfind('@');
  return '<' + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() + '@' +
         (at == std::string::npos ? "localhost" : from.substr(at + 1)) + '>';
}

// All line ends as "\n".
std::string WithPlainLineEnds(const std::string& text) {
  std::string lines;
  for (size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    lines += text[i] == '\r' ? '\n' : text[i];
  }
  return lines;
}

// RFC 2045, 6.7: a blank at the end of a line would be lost, and "=" begins an escape.
std::string QuotedPrintable(const std::string& text) {
  std::string quoted;
  size_t line = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\n') {
      quoted += "\r\n";
      line = 0;
      continue;
    }
    if (line >= kBodyLine) {
      quoted += "=\r\n";
      line = 0;
    }
    const bool ends_line = i + 1 == text.size() || text[i + 1] == '\n';
    if ((IsPrintable(c) && c != '=') || (c == ' ' && !ends_line)) {
      quoted += c;
      ++line;
    } else {
      const auto byte = static_cast<unsigned char>(c);
      quoted += {'=', kHex[byte >> 4], kHex[byte & 15]};
      line += 3;
    }
  }
  return quoted;
}

}  // namespace

std::string MailMessage(const Mail& mail, const QDateTime& moment) {
  std::string message;
  const auto add = [&message](const char* name, const std::string& value) {
    message += std::string(name) + ": " + value + "\r\n";
  };
  add("Date", moment.toString(Qt::RFC2822Date).toStdString());
  add("From", Mailbox(mail.from_name, mail.from));
  add("To", Mailbox(mail.to_name, mail.to));
  if (!mail.reply_to.empty()) add("Reply-To", Mailbox("", mail.reply_to));
  add("Subject", HeaderText(mail.subject));
  add("Message-ID", NewMessageID(mail.from));
  if (!mail.organization.empty()) add("Organization", HeaderText(mail.organization));
  add("X-Priority", std::to_string(mail.priority));
  if (mail.receipt != 0) add("Disposition-Notification-To", Mailbox("", mail.from));
  add("MIME-Version", "1.0");
  add("Content-Type", "text/plain; charset=UTF-8");
  add("Content-Transfer-Encoding", "quoted-printable");
  return message + "\r\n" + QuotedPrintable(ToUtf8(WithPlainLineEnds(mail.body))) + "\r\n";
}

}  // namespace skyloft
