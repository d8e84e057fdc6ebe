// The program, which asks for the stamps once more as soon as its start is over and its main window on show.
#include <QCoreApplication>
#include <QTimer>

#include "core/mainform.h"
#include "feed/observations.h"
#include "platform/controls.h"
#include "platform/qt/app_options.h"
#include "platform/qt/application.h"

namespace {

void FetchAgain() {
  auto* const poll = new QTimer(QCoreApplication::instance());
  QObject::connect(poll, &QTimer::timeout, poll, [poll] {
    if (skyloft::Start.LocalView.empty()) return;
    poll->stop();
    skyloft::Raise(skyloft::GetMetaData);
  });
  poll->start(20);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(FetchAgain)

int main(int argc, char** argv) {
  const auto options = skyloft::ReadOptions(argc, argv);
  return options ? skyloft::RunApplication(argc, argv, *options) : 2;
}
