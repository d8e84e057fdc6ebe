#include "platform/qt/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <utility>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QThread>
#include <QTimer>

#include "platform/qt/process_qt.h"

namespace skyloft {
namespace {

constexpr const char* kTitle = "Skyloft";
constexpr char kRequest = 'f';                            // come forward
constexpr char kAnswer = 'k';                             // it has
constexpr int kPatience = 10000;                          // milliseconds of a later start
constexpr int kRetry = 20;                                // milliseconds until it asks again
constexpr int kSilence = 1000;                            // milliseconds in which a caller must have spoken
constexpr int kMostCallers = 16;                          // at a time
constexpr mode_t kOwnFile = S_ISVTX | S_IRUSR | S_IWUSR;  // run-time folders keep what is sticky

// An open file or socket that closes with its scope.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  explicit operator bool() const { return number_ >= 0; }
  int operator*() const { return number_; }
  int Release() { return std::exchange(number_, -1); }

 private:
  int number_;
};

struct Instance {
  Descriptor folder, lock, listener;
  std::string lock_name, socket_name;
};
Instance& TheInstance() {
  static Instance instance;
  return instance;
}

// A folder that nobody else writes to.
Descriptor OpenOwnFolder(const QString& path) {
  Descriptor folder(open(QFile::encodeName(path), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
  struct stat facts;
  const bool own = folder && fstat(*folder, &facts) == 0 && facts.st_uid == geteuid() &&
                   (facts.st_mode & (S_IWGRP | S_IWOTH)) == 0;
  return own ? std::move(folder) : Descriptor();
}

Descriptor OpenRuntimeFolder() {
  const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  if (QDir::isAbsolutePath(runtime)) {
    if (Descriptor folder = OpenOwnFolder(runtime)) return folder;
  }
  const QString own = QDir::tempPath() + "/skyloft-" + QString::number(geteuid());
  mkdir(QFile::encodeName(own), S_IRWXU);
  return OpenOwnFolder(own);
}

std::string NameOf(const QString& root) {
  const QByteArray path = QFile::encodeName(QFileInfo(root).canonicalFilePath());
  const QByteArray hash = QCryptographicHash::hash(path, QCryptographicHash::Sha256).toHex().left(16);
  return kTitle + ("-" + std::to_string(geteuid())) + "-" + hash.toStdString();
}

enum class Rank { First, Later, Unknown };

Rank TakeLock(Instance& instance) {
  while (true) {
    Descriptor lock(openat(*instance.folder, instance.lock_name.c_str(),
                           O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, kOwnFile));
    if (!lock) return Rank::Unknown;
    if (flock(*lock, LOCK_EX | LOCK_NB) != 0) return errno == EWOULDBLOCK ? Rank::Later : Rank::Unknown;
    struct stat facts;
    if (fstat(*lock, &facts) != 0) return Rank::Unknown;
    if (facts.st_nlink == 0) continue;  // its holder removed it when it ended, after we had opened it
    instance.lock = std::move(lock);
    return Rank::First;
  }
}

// By way of the open folder, as an address holds 107 bytes only.
sockaddr_un AddressOf(const Instance& instance) {
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  std::snprintf(address.sun_path, sizeof address.sun_path, "/proc/self/fd/%d/%s", *instance.folder,
                instance.socket_name.c_str());
  return address;
}

Descriptor MakeSocket() { return Descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0)); }

bool Listen(Instance& instance) {
  unlinkat(*instance.folder, instance.socket_name.c_str(), 0);  // left by one that was killed
  instance.listener = MakeSocket();
  const sockaddr_un address = AddressOf(instance);
  return instance.listener &&
         bind(*instance.listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
         fchmodat(*instance.folder, instance.socket_name.c_str(), kOwnFile, 0) == 0 &&
         listen(*instance.listener, kMostCallers) == 0;
}

// The lock goes last: who takes the next one makes a socket of its own.
void RemoveFiles() {
  const Instance& instance = TheInstance();
  unlinkat(*instance.folder, instance.socket_name.c_str(), 0);
  unlinkat(*instance.folder, instance.lock_name.c_str(), 0);
}

// Whether the other end of a connection is a process of this user.
bool IsOwn(int socket) {
  ucred peer = {};
  socklen_t size = sizeof peer;
  return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == geteuid();
}

// Whether the first has come forward.
bool Call(const Instance& instance, const QDeadlineTimer& deadline) {
  const Descriptor line = MakeSocket();
  const sockaddr_un address = AddressOf(instance);
  if (!line || connect(*line, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) return false;
  if (!IsOwn(*line) || send(*line, &kRequest, 1, MSG_NOSIGNAL) != 1) return false;
  pollfd waiting = {*line, POLLIN, 0};
  char answer = 0;
  return poll(&waiting, 1, static_cast<int>(deadline.remainingTime())) == 1 &&
         recv(*line, &answer, 1, 0) == 1 && answer == kAnswer;
}

// A caller is heard once. It goes then, or when it has been silent for too long.
void HearCaller(int socket, QSocketNotifier* door, const std::function<void()>& come_forward) {
  auto* ear = new QSocketNotifier(socket, QSocketNotifier::Read, door);
  QObject::connect(ear, &QObject::destroyed, [socket] { close(socket); });
  QObject::connect(ear, &QSocketNotifier::activated, ear, [=] {
    ear->setEnabled(false);
    ear->deleteLater();
    char request = 0;
    if (recv(socket, &request, 1, 0) != 1 || request != kRequest) return;
    come_forward();
    send(socket, &kAnswer, 1, MSG_NOSIGNAL);
  });
  QTimer::singleShot(kSilence, ear, &QObject::deleteLater);
}

}  // namespace

bool BecomeFirst(const QString& root) {
  Instance& instance = TheInstance();
  instance.folder = OpenRuntimeFolder();
  instance.lock_name = NameOf(root) + ".lock";
  instance.socket_name = NameOf(root) + ".socket";
  const QDeadlineTimer deadline(kPatience);
  // The first may still be starting or just be ending, so both are tried until one holds.
  while (true) {
    const Rank rank = TakeLock(instance);
    if (rank == Rank::First) AtEnd(RemoveFiles);
    if (rank == Rank::First && Listen(instance)) return true;
    if (rank != Rank::Later) {
      std::fprintf(stderr, "skyloft: cannot watch for a second start\n");
      return true;
    }
    if (Call(instance, deadline)) return false;
    if (deadline.hasExpired()) break;
    QThread::msleep(kRetry);
  }
  std::fprintf(stderr, "skyloft: it runs already but does not answer\n");
  return false;
}

void AnswerLaterStarts(std::function<void()> come_forward) {
  const Instance& instance = TheInstance();
  if (!instance.listener) return;
  auto* door = new QSocketNotifier(*instance.listener, QSocketNotifier::Read, QCoreApplication::instance());
  QObject::connect(door, &QSocketNotifier::activated, door, [door, come_forward = std::move(come_forward)] {
    Descriptor caller(accept4(*TheInstance().listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC));
    if (!caller || !IsOwn(*caller) || door->children().size() >= kMostCallers) return;
    HearCaller(caller.Release(), door, come_forward);
  });
}

}  // namespace skyloft
