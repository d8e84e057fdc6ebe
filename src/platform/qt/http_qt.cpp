#include "platform/qt/http_qt.h"

#include <curl/curl.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include <QElapsedTimer>
#include <QEventLoop>
#include <QSaveFile>
#include <QSocketNotifier>
#include <QTimer>

#include "base/values.h"
#include "platform/http.h"
#include "platform/qt/drive.h"
#include "platform/qt/files_qt.h"

namespace skyloft {
namespace {

constexpr const char* kAgent = "Dart Communications PowerTCP";
constexpr int kMostRedirects = 3;
constexpr int kLaterTimeout = 60000;
constexpr curl_off_t kLargestText = 8 << 20;
constexpr curl_off_t kLargestFile = 256 << 20;

struct HttpState {
  std::string example_server;  // "HOST:PORT" that stands for every name under skyloft.example
  int under_way = 0;
};
HttpState& TheHttp() {
  static HttpState state;
  return state;
}

std::string HostOf(const std::string& address) {
  const size_t start = address.find("://") + 3;
  const std::string host = address.substr(start, address.find_first_of("/?#", start) - start);
  const size_t name_end = host.find(']') == std::string::npos ? 0 : host.find(']');
  return LowerCase(host.substr(0, host.find(':', name_end)));
}

bool IsExampleHost(const std::string& host) { return host.ends_with(".skyloft.example"); }

bool IsLoopback(const std::string& host) {
  return host == "localhost" || host.starts_with("127.") || host == "[::1]";
}

// Where a reply goes: into memory or into a file that appears when it is whole.
struct Sink {
  curl_off_t limit;
  std::string text;
  std::unique_ptr<QSaveFile> file;
  curl_off_t size = 0;

  bool Take(const char* bytes, size_t count) {
    size += static_cast<curl_off_t>(count);
    if (size > limit) return false;
    if (file) return file->write(bytes, static_cast<qint64>(count)) == static_cast<qint64>(count);
    text.append(bytes, count);
    return true;
  }
};

// One fetch: libcurl's multi interface on Qt's event loop. Its callbacks only note what happened; the
// program's own procedures run from the loop.
class Fetch {
 public:
  using Progress = std::function<void(long long bytes, long long total)>;

  Fetch(Sink& sink, Progress progress) : sink_(sink), progress_(std::move(progress)) {
    multi_ = curl_multi_init();
    easy_ = curl_easy_init();
    curl_multi_setopt(multi_, CURLMOPT_SOCKETFUNCTION, &Fetch::OnSocket);
    curl_multi_setopt(multi_, CURLMOPT_SOCKETDATA, this);
    curl_multi_setopt(multi_, CURLMOPT_TIMERFUNCTION, &Fetch::OnTimer);
    curl_multi_setopt(multi_, CURLMOPT_TIMERDATA, this);
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Act(CURL_SOCKET_TIMEOUT, 0); });
    ++TheHttp().under_way;
  }
  Fetch(const Fetch&) = delete;
  Fetch& operator=(const Fetch&) = delete;
  ~Fetch() {
    --TheHttp().under_way;
    curl_easy_cleanup(easy_);
    curl_multi_cleanup(multi_);
    curl_slist_free_all(connect_to_);
  }

  // Fetches `address` and then calls `done` once, from the loop: whether the whole reply arrived with the
  // final status 200. `done` may destroy the fetch.
  void Start(std::string address, int timeout, std::function<void(bool)> done) {
    clock_.start();
    timeout_ = timeout;
    done_ = std::move(done);
    RunOnce(std::move(address));
  }

 private:
  void RunOnce(std::string address) {
    address_ = std::move(address);
    SetUp(address_, std::max<qint64>(timeout_ - clock_.elapsed(), 1));
    curl_multi_add_handle(multi_, easy_);
    Act(CURL_SOCKET_TIMEOUT, 0);
  }

  // The reply of one address is over: the end, or the next address of a redirect.
  void OnEnd(CURLcode result) {
    long status = 0;
    const char* target = nullptr;
    curl_easy_getinfo(easy_, CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(easy_, CURLINFO_REDIRECT_URL, &target);
    const std::string next = target ? target : "";
    curl_multi_remove_handle(multi_, easy_);
    notifiers_.clear();
    const bool moved = result == CURLE_OK && status != 200 && !next.empty() && redirects_ < kMostRedirects &&
                       clock_.elapsed() < timeout_ && MayRedirect(address_, next);
    if (moved) {
      ++redirects_;
      RunOnce(next);
      return;
    }
    const auto done = std::move(done_);
    done(result == CURLE_OK && status == 200);
  }

  void SetUp(const std::string& address, qint64 milliseconds) {
    curl_easy_reset(easy_);
    curl_easy_setopt(easy_, CURLOPT_URL, address.c_str());
    curl_easy_setopt(easy_, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(easy_, CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_0});
    curl_easy_setopt(easy_, CURLOPT_USERAGENT, kAgent);
    curl_easy_setopt(easy_, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(easy_, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy_, CURLOPT_TIMEOUT_MS, static_cast<long>(milliseconds));
    curl_easy_setopt(easy_, CURLOPT_MAXFILESIZE_LARGE, sink_.limit);
    curl_easy_setopt(easy_, CURLOPT_WRITEFUNCTION, &Fetch::OnData);
    curl_easy_setopt(easy_, CURLOPT_WRITEDATA, this);
    const std::string host = HostOf(address);
    const std::string& server = TheHttp().example_server;
    const bool example = IsExampleHost(host) && !server.empty();
    if (example) {
      curl_slist_free_all(connect_to_);
      connect_to_ = curl_slist_append(nullptr, ("::" + server).c_str());
      curl_easy_setopt(easy_, CURLOPT_CONNECT_TO, connect_to_);
    }
    if (example || IsLoopback(host)) curl_easy_setopt(easy_, CURLOPT_PROXY, "");
  }

  static size_t OnData(char* bytes, size_t, size_t count, void* self) {
    auto* fetch = static_cast<Fetch*>(self);
    long status = 0;
    curl_easy_getinfo(fetch->easy_, CURLINFO_RESPONSE_CODE, &status);
    if (status == 200 && !fetch->sink_.Take(bytes, count)) return 0;
    fetch->PostProgress();
    return count;
  }

  static int OnSocket(CURL*, curl_socket_t socket, int what, void* self, void*) {
    auto* fetch = static_cast<Fetch*>(self);
    fetch->notifiers_.erase(socket);
    if (what == CURL_POLL_REMOVE) return 0;
    auto& watched = fetch->notifiers_[socket];
    const auto watch = [&](QSocketNotifier::Type type, int event) {
      auto* notifier = watched.emplace_back(new QSocketNotifier(socket, type), &Fetch::Discard).get();
      QObject::connect(notifier, &QSocketNotifier::activated,
                       [fetch, socket, event] { fetch->Act(socket, event); });
    };
    if (what & CURL_POLL_IN) watch(QSocketNotifier::Read, CURL_CSELECT_IN);
    if (what & CURL_POLL_OUT) watch(QSocketNotifier::Write, CURL_CSELECT_OUT);
    return 0;
  }

  static int OnTimer(CURLM*, long milliseconds, void* self) {
    QTimer& timer = static_cast<Fetch*>(self)->timer_;
    if (milliseconds < 0) {
      timer.stop();
    } else {
      timer.start(static_cast<int>(std::min(milliseconds, 100000L)));
    }
    return 0;
  }

  // A notifier may be discarded inside its own signal.
  static void Discard(QSocketNotifier* notifier) {
    notifier->setEnabled(false);
    notifier->deleteLater();
  }

  void Act(curl_socket_t socket, int events) {
    int running = 0;
    curl_multi_socket_action(multi_, socket, events, &running);
    int left = 0;
    while (const CURLMsg* message = curl_multi_info_read(multi_, &left)) {
      if (message->msg != CURLMSG_DONE) continue;
      QTimer::singleShot(0, &timer_, [this, result = message->data.result] { OnEnd(result); });
    }
  }

  void PostProgress() {
    if (!progress_ || progress_posted_) return;
    progress_posted_ = true;
    QTimer::singleShot(0, &timer_, [this] {
      progress_posted_ = false;
      curl_off_t total = 0;
      curl_easy_getinfo(easy_, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &total);
      progress_(sink_.size, std::max<curl_off_t>(total, 0));
    });
  }

  Sink& sink_;
  Progress progress_;
  CURLM* multi_ = nullptr;
  CURL* easy_ = nullptr;
  curl_slist* connect_to_ = nullptr;
  QTimer timer_;
  QElapsedTimer clock_;
  int timeout_ = 0;
  int redirects_ = 0;
  std::string address_;
  std::function<void(bool)> done_;
  std::map<curl_socket_t, std::vector<std::unique_ptr<QSocketNotifier, void (*)(QSocketNotifier*)>>>
      notifiers_;
  bool progress_posted_ = false;
};

// Runs one fetch of a control to its end, while events go on.
bool RunFetch(HttpControl& control, Sink& sink) {
  const auto address = FetchAddress(control.Url);
  if (!address) return false;
  struct Busy {
    HttpControl& http;
    explicit Busy(HttpControl& control) : http(control) { http.State = 1; }
    ~Busy() { http.State = 0; }
  } busy(control);
  Fetch::Progress progress;
  if (control.Progress) {
    progress = [&control](long long bytes, long long total) {
      Raise([&] { control.Progress(bytes, total); });
    };
  }
  Fetch fetch(sink, progress);
  QEventLoop loop;
  bool whole = false;
  fetch.Start(*address, control.Timeout, [&](bool arrived) {
    whole = arrived;
    loop.quit();
  });
  loop.exec();
  return whole;
}

}  // namespace

void SetExampleServer(const std::string& server) {
  const size_t host_end = server.rfind(']') == std::string::npos ? 0 : server.rfind(']');
  const bool has_port = server.find(':', host_end) != std::string::npos;
  TheHttp().example_server = has_port ? server : server + ":80";
}

int FetchesUnderWay() { return TheHttp().under_way; }

bool HttpGet(HttpControl& control, std::string& text) {
  Sink sink{kLargestText, {}, nullptr};
  if (!RunFetch(control, sink)) return false;
  text = std::move(sink.text);
  return true;
}

bool HttpGetFile(HttpControl& control, const std::string& path) {
  const auto file = PathForWriting(path);
  if (!file) return false;
  Sink sink{kLargestFile, {}, std::make_unique<QSaveFile>(*file)};
  if (!sink.file->open(QIODevice::WriteOnly)) return false;
  // A commit alone passes over what its own flush could not write.
  if (!RunFetch(control, sink) || !sink.file->flush() || !sink.file->commit()) return false;
  StampFile(*file);
  return true;
}

void DialInternet(int) {}

void FetchLater(const std::string& url, std::function<void(std::string)> done) {
  struct Later {
    Sink sink{kLargestText, {}, nullptr};
    std::unique_ptr<Fetch> fetch;
  };
  const auto address = FetchAddress(url);
  if (!address) return done("");
  auto* later = new Later;
  later->fetch = std::make_unique<Fetch>(later->sink, nullptr);
  later->fetch->Start(*address, kLaterTimeout, [later, done = std::move(done)](bool arrived) {
    const std::unique_ptr<Later> owner(later);
    done(arrived ? std::move(owner->sink.text) : "");
  });
}

}  // namespace skyloft
