#include "platform/qt/machine/Closing.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <algorithm>

#include "platform/UserInput.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"

#if defined(Q_OS_UNIX)
#include <fcntl.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <csignal>
#endif

namespace qt {

namespace {

Window* fncMainWindow() {
  for (const WindowKind kind : {WindowKind::Frame, WindowKind::Start}) {
    const auto found = std::ranges::find(fncWindows(), kind, &Window::Kind);
    if (found != fncWindows().end()) {
      return *found;
    }
  }
  return fncWindows().empty() ? nullptr : fncWindows().front();
}

#if defined(Q_OS_UNIX)
int intPipe[2] = {-1, -1};

extern "C" {
static void prcSignalled(int /*signal*/) {
  const char mark = 1;
  [[maybe_unused]] const auto written = write(intPipe[1], &mark, 1);
}
}

/// A signal may come at any instruction; a pipe brings it into the event loop.
void prcWatchSignals() {
  if (pipe(intPipe) != 0) {
    return;
  }
  for (const int end : intPipe) {
    fcntl(end, F_SETFD, FD_CLOEXEC);
    fcntl(end, F_SETFL, O_NONBLOCK);
  }
  auto* notifier = new QSocketNotifier(intPipe[0], QSocketNotifier::Read, qGuiApp);
  QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
    char mark = 0;
    while (read(intPipe[0], &mark, 1) > 0) {
    }
    prcAskClose();
  });
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    struct sigaction action = {};
    action.sa_handler = prcSignalled;
    action.sa_flags = SA_RESTART;
    sigaction(signal, &action, nullptr);
  }
}
#else
void prcWatchSignals() {}
#endif

}  // namespace

void prcAskClose() {
  if (Window* window = fncMainWindow(); window != nullptr) {
    prcServe([window] { prcUserClose(*window); });
  }
}

void prcWatchOutside() {
  QObject::connect(qGuiApp, &QGuiApplication::commitDataRequest, qGuiApp,
                   [](QSessionManager& session) {
                     prcAskClose();
                     if (!fncEnded()) {
                       session.cancel();
                     }
                   });
  prcWatchSignals();
}

}  // namespace qt
