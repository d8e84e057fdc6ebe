#include "platform/smtp_sink.h"

#include <QDir>
#include <QFile>

namespace skyloft {
namespace {

QByteArray BytesOf(const QString& name) {
  QFile file(name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

SmtpSink::SmtpSink(const QString& behaviour) {
  process_.start(SKYLOFT_SMTP_SINK, {folder_.path(), behaviour});
  while (!process_.canReadLine() && process_.waitForReadyRead(10000)) {
  }
  port_ = process_.readLine().trimmed().toStdString();
}

SmtpSink::~SmtpSink() {
  process_.kill();
  process_.waitForFinished();
}

std::vector<std::string> SmtpSink::Messages() const {
  std::vector<std::string> messages;
  for (int i = 1; QFile::exists(folder_.filePath(QString::number(i))); ++i)
    messages.push_back(BytesOf(folder_.filePath(QString::number(i))).toStdString());
  return messages;
}

std::vector<std::string> SmtpSink::Commands() const {
  std::vector<std::string> commands;
  for (const QByteArray& line : BytesOf(folder_.filePath("commands")).split('\n')) {
    if (!line.isEmpty()) commands.push_back(line.toStdString());
  }
  return commands;
}

}  // namespace skyloft
