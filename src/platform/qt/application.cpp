#include "platform/qt/application.h"

#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <optional>

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QSessionManager>
#include <QSocketNotifier>
#include <QStandardPaths>
#include <QTimer>

#include "core/chrome.h"
#include "core/mainform.h"
#include "feed/addresses.h"
#include "feed/hosts.h"
#include "forms/forms.h"
#include "platform/qt/clock_qt.h"
#include "platform/qt/dialogs_qt.h"
#include "platform/qt/display.h"
#include "platform/qt/drive.h"
#include "platform/qt/feed_process.h"
#include "platform/qt/http_qt.h"
#include "platform/qt/print_qt.h"
#include "platform/qt/process_qt.h"
#include "platform/qt/registry_qt.h"
#include "platform/qt/screen_qt.h"
#include "platform/qt/script.h"
#include "platform/qt/single_instance.h"
#include "platform/qt/skin_style.h"
#include "platform/qt/snapshot.h"
#include "platform/registry_store.h"
#include "setup/demo.h"

namespace skyloft {
namespace {

int signal_pipe[2];

struct RunState {
  AppOptions options;
};
RunState& TheRun() {
  static RunState run;
  return run;
}

int Refuse(const char* what, const std::string& value) {
  std::fprintf(stderr, "skyloft: %s %s\n", what, value.c_str());
  return 2;
}

// A folder of its own for a first look; it goes when the program ends.
QString MakeDemoFolder() {
  std::string name = QDir::tempPath().toStdString() + "/skyloft-demo-XXXXXX";
  if (!mkdtemp(name.data())) return QDir::tempPath();
  const QString folder = QString::fromStdString(name);
  AtEnd([folder] { QDir(folder).removeRecursively(); });
  return folder;
}

// Makes the drive; the folder of the store, which only the first process opens. Nothing when it cannot be
// made.
std::optional<QString> SetUpFolders(const AppOptions& options) {
  const QString share = QDir(QString::fromStdString(ProgramFolder()) + "/../share/skyloft").absolutePath();
  QDir::setSearchPaths("skin", {share + "/skin"});
  if (options.root.empty() && !options.demo) {
    using Paths = QStandardPaths;
    if (!SetUpDrive(Paths::writableLocation(Paths::GenericDataLocation) + "/skyloft", share))
      return std::nullopt;
    return Paths::writableLocation(Paths::GenericConfigLocation) + "/skyloft";
  }
  const QString root = options.root.empty() ? MakeDemoFolder() : QString::fromLocal8Bit(options.root.c_str());
  if (!SetUpDrive(root, share)) return std::nullopt;
  return DriveRoot();
}

void SetUpServer(const AppOptions& options) {
  HostAddress.WebHost = options.hosts.empty() ? kWebHost : options.hosts;
  if (!options.hosts.empty()) SetExampleServer(options.hosts);
  if (!options.hosts.empty()) return;
  if (const auto server = StartFeed(options.bulletins)) SetExampleServer(*server);
}

// On a Wayland desktop too, by its X11 server: only there may a program place its own windows.
void PreferX11() {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && qEnvironmentVariableIsSet("DISPLAY")) {
    qputenv("QT_QPA_PLATFORM", "xcb");
  }
}

void OnTerminate(int) {
  const char byte = 1;
  [[maybe_unused]] const auto written = write(signal_pipe[1], &byte, 1);
}

// SIGTERM and the end of the desktop's session leave as the menu's exit does.
void WatchEnd(QApplication& application) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signal_pipe) == 0) {
    auto* notifier = new QSocketNotifier(signal_pipe[0], QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, [] { Raise(LeaveProgram); });
    struct sigaction action = {};
    action.sa_handler = OnTerminate;
    sigaction(SIGTERM, &action, nullptr);
    sigaction(SIGINT, &action, nullptr);
  }
  QObject::connect(&application, &QGuiApplication::commitDataRequest,
                   [](QSessionManager&) { Raise(LeaveProgram); });
}

void TakeSnapshotAndEnd() {
  if (!Display::Get().Idle()) {
    QTimer::singleShot(5, &Display::Get(), TakeSnapshotAndEnd);
    return;
  }
  const bool saved = SaveSnapshot(QString::fromLocal8Bit(TheRun().options.snapshot.c_str()));
  if (!saved) std::fprintf(stderr, "skyloft: cannot save to %s\n", TheRun().options.snapshot.c_str());
  EndWith(saved ? 0 : 2);
}

// For a second start. A program that is still starting comes up by itself, and one that could not start has
// nothing else to show.
void ComeForward() {
  if (Start.Loaded && !Start.LocalView.empty()) Raise(ShowAgain);
}

// Everything after the event loop has begun.
void StartProgram() {
  const AppOptions& options = TheRun().options;
  if (options.demo) SetUpDemoTowns();
  LoadMainForm();
  SyncStore();
  void (*finished)() = options.snapshot.empty() ? nullptr : TakeSnapshotAndEnd;
  if (!options.script.empty()) {
    RunScript(finished);
  } else if (finished) {
    finished();
  }
}

}  // namespace

int RunApplication(int argc, char** argv, const AppOptions& options) {
  TheRun().options = options;
  if (!SetZone(QString::fromStdString(options.zone))) return Refuse("no time zone", options.zone);
  if (!options.now.empty()) StopClock(ReadDate(options.now));
  if (!options.script.empty() && !LoadScript(options.script)) return Refuse("cannot read", options.script);
  const auto store = SetUpFolders(options);
  if (!store) return Refuse("cannot keep files in", options.root);
  if (!BecomeFirst(DriveRoot())) EndWith(0);
  SetUpStore(*store);
  SetUpServer(options);

  PreferX11();
  QApplication application(argc, argv);
  QApplication::setApplicationName("skyloft");
  QGuiApplication::setDesktopFileName("example.skyloft.Skyloft");
  QApplication::setQuitOnLastWindowClosed(false);
  SetFont();
  SetDotsPerInch(options.dots_per_inch);
  QApplication::setPalette(SkinPalette());
  application.setStyleSheet(SkinStyle());
  application.setWindowIcon(QIcon("skin:app.ico"));
  WatchEnd(application);
  AnswerLaterStarts(ComeForward);
  if (!options.script.empty() || !options.snapshot.empty()) AnswerBoxesByScript();

  if (!options.print.empty()) PrintIntoFile(options.print);

  AtEnd(SyncStore);
  ApplySkin();
  ConnectForms();
  Display::Get().Start();
  Display::Get().RunTimers(options.script.empty());
  QTimer::singleShot(0, StartProgram);
  return QApplication::exec();
}

}  // namespace skyloft
