#include "child.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QProcessEnvironment>
#include <QThread>

namespace skyloft::bench {
namespace {

QByteArray ReadProc(const QString& name) {
  QFile file("/proc/" + name);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Megabytes of a line such as "Pss:    24576 kB".
double MegabytesOf(const QByteArray& text, const QByteArray& name) {
  for (const QByteArray& line : text.split('\n')) {
    if (line.startsWith(name + ':'))
      return line.mid(name.size() + 1).simplified().split(' ').first().toDouble() / 1024;
  }
  return 0;
}

std::vector<QByteArray> BytesOf(const QStringList& words) {
  std::vector<QByteArray> bytes;
  for (const QString& word : words) bytes.push_back(word.toLocal8Bit());
  return bytes;
}

std::vector<char*> PointersTo(std::vector<QByteArray>& words) {
  std::vector<char*> pointers;
  for (QByteArray& word : words) pointers.push_back(word.data());
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

Child::Child(const QStringList& words, const QStringList& variables) {
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  for (const QString& variable : variables)
    environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
  std::vector<QByteArray> arguments = BytesOf(words);
  std::vector<QByteArray> settings = BytesOf(environment.toStringList());
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  for (const int output : {STDOUT_FILENO, STDERR_FILENO}) {
    posix_spawn_file_actions_addopen(&actions, output, "/dev/null", O_WRONLY, 0);
  }
  if (posix_spawn(&pid_, arguments[0].data(), &actions, nullptr, PointersTo(arguments).data(),
                  PointersTo(settings).data()) != 0) {
    pid_ = -1;
  }
  posix_spawn_file_actions_destroy(&actions);
}

Child::~Child() {
  if (pid_ < 0) return;
  kill(pid_, SIGTERM);
  for (int i = 0; i < 300 && Runs(); ++i) QThread::msleep(10);
  if (!Runs()) return;
  kill(pid_, SIGKILL);
  waitpid(pid_, nullptr, 0);
}

bool Child::Runs() {
  if (pid_ >= 0 && waitpid(pid_, nullptr, WNOHANG) == pid_) pid_ = -1;
  return pid_ >= 0;
}

double Child::Elapsed() const {
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start_).count();
}

std::vector<pid_t> Child::Family() const {
  std::vector<pid_t> family = {pid_};
  const QString own = QString::number(pid_);
  for (const QByteArray& child : ReadProc(own + "/task/" + own + "/children").simplified().split(' ')) {
    if (!child.isEmpty()) family.push_back(child.toInt());
  }
  return family;
}

double Child::ProportionalMegabytes() const {
  double sum = 0;
  for (const pid_t pid : Family())
    sum += MegabytesOf(ReadProc(QString::number(pid) + "/smaps_rollup"), "Pss");
  return sum;
}

double Child::PeakMegabytes() const {
  double sum = 0;
  for (const pid_t pid : Family()) sum += MegabytesOf(ReadProc(QString::number(pid) + "/status"), "VmHWM");
  return sum;
}

double Child::CpuSeconds() const {
  double nanoseconds = 0;
  for (const pid_t pid : Family()) {
    const QString tasks = QString::number(pid) + "/task";
    for (const QString& task : QDir("/proc/" + tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      nanoseconds += ReadProc(tasks + '/' + task + "/schedstat").split(' ').first().toDouble();
    }
  }
  return nanoseconds / 1e9;
}

}  // namespace skyloft::bench
