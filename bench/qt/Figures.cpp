#include "bench/qt/Figures.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "platform/qt/windows/Screen.h"
#include "shell/MDIForm1.h"

namespace {

int intRenames = 0;

/// Waits for the first paint event of a control's widget.
class FirstPaint : public QObject {
 public:
  FirstPaint(const Control& control, std::function<void()> done)
      : control_(control), done_(std::move(done)) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint || blnSeen_) {
      return false;
    }
    const qt::ControlView* view = qt::fncViewOf(control_);
    if (view != nullptr && view->Widget == object) {
      blnSeen_ = true;
      QTimer::singleShot(0, this, [this] { prcLook(); });
    }
    return false;
  }

 private:
  void prcLook() {
    if (MDIForm1.Form.Visible && MDIForm1.Timer1.Enabled) {
      QTimer::singleShot(1, this, [this] { prcLook(); });
      return;
    }
    deleteLater();
    done_();
  }

  const Control& control_;
  std::function<void()> done_;
  bool blnSeen_ = false;
};

}  // namespace

/// Stands before the library's own, so that the writes of a run are counted and not guessed.
extern "C" int rename(const char* from, const char* to) noexcept {
  ++intRenames;
  return static_cast<int>(syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}

namespace bench {

double fncNow() {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  return std::chrono::duration<double, std::milli>(now).count();
}

double fncProcessorTime() {
  rusage used{};
  getrusage(RUSAGE_SELF, &used);
  const auto milliseconds = [](const timeval& time) {
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
  };
  return milliseconds(used.ru_utime) + milliseconds(used.ru_stime);
}

double fncQuantile(std::vector<double> values, double part) {
  std::ranges::sort(values);
  return values[static_cast<std::size_t>(part * static_cast<double>(values.size() - 1))];
}

void prcTell(const char* name, double value) {
  std::printf("%s %.4f\n", name, value);
  std::fflush(stdout);
}

void prcGiveUp(const char* why) {
  std::fprintf(stderr, "velmora_qt_bench: %s\n", why);
  std::_Exit(1);
}

void prcWhenPainted(const Control& control, std::function<void()> done) {
  new FirstPaint(control, std::move(done));
}

void prcRest(int milliseconds) {
  QEventLoop loop;
  QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
  loop.exec();
}

int fncRenames() { return intRenames; }

}  // namespace bench
