#include "tests/qt/stage/Clock.h"

#include <QCoreApplication>
#include <QTimerEvent>
#include <algorithm>
#include <tuple>
#include <vector>

#include "judges/Adapter.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"

/// Exported by the toolkit for event loops like this one, but told in none of its public headers.
class QWindowSystemInterface {
 public:
  static bool sendWindowSystemEvents(QEventLoop::ProcessEventsFlags flags);
};

namespace stage {

namespace {

/// A timer of the toolkit, or an event of the script.
struct Pending {
  std::uint64_t Due;
  std::function<void()> Event;
  QObject* Timed = nullptr;
  int Id = 0;  ///< Of a timer; never 0 there.
  std::uint64_t Interval = 0;
  bool blnTicks = false;  ///< Its handler runs: a timer does not tick into itself.
};

class Clock : public QAbstractEventDispatcher {
 public:
  std::uint64_t Now = 0, Begin = 0;  ///< Begin is the time of prcResetClock.
  std::vector<Pending> Line;
  bool (*Look)() = [] { return false; };

  bool processEvents(QEventLoop::ProcessEventsFlags flags) override {
    blnInterrupted_ = false;
    for (;;) {
      bool blnServed = fncServePosted();
      while (!blnInterrupted_ && fncServeDue()) {
        blnServed = true;
      }
      if (blnServed || blnInterrupted_ || !flags.testFlag(QEventLoop::WaitForMoreEvents)) {
        return blnServed;
      }
      if (Look()) {
        return true;
      }
      const auto next = fncNext();
      if (next == Line.end()) {
        qWarning("the program waits for what can never come");
        qt::prcNoteEnd();
        return false;
      }
      Now = std::max(Now, next->Due);
    }
  }

  bool fncServePosted() {
    const bool blnPosted = std::exchange(blnPosted_, false);
    QCoreApplication::sendPostedEvents();
    return QWindowSystemInterface::sendWindowSystemEvents(QEventLoop::AllEvents) || blnPosted;
  }

  void registerTimer(int id, qint64 interval, Qt::TimerType /*type*/, QObject* object) override {
    const auto tick = [id, object] {
      QTimerEvent event(id);
      QCoreApplication::sendEvent(object, &event);
    };
    const auto length = static_cast<std::uint64_t>(interval);
    Line.push_back({Now + length, tick, object, id, length});
  }
  bool unregisterTimer(int id) override {
    return std::erase_if(Line, [&](const Pending& one) { return one.Id == id; }) != 0;
  }
  bool unregisterTimers(QObject* object) override {
    return std::erase_if(Line, [&](const Pending& one) { return one.Timed == object; }) != 0;
  }
  QList<TimerInfo> registeredTimers(QObject* /*object*/) const override { return {}; }
  int remainingTime(int /*id*/) override { return -1; }
  void registerSocketNotifier(QSocketNotifier* /*notifier*/) override {}
  void unregisterSocketNotifier(QSocketNotifier* /*notifier*/) override {}
  void wakeUp() override { blnPosted_ = true; }
  void interrupt() override { blnInterrupted_ = true; }

 private:
  /// What is due first, the script before the timers; the end where nothing can be.
  std::vector<Pending>::iterator fncNext() {
    const auto next = std::ranges::min_element(Line, {}, [](const Pending& one) {
      return std::tuple(one.blnTicks, one.Due, one.Timed != nullptr);
    });
    return next != Line.end() && next->blnTicks ? Line.end() : next;
  }

  bool fncServeDue() {
    const auto next = fncNext();
    if (next == Line.end() || next->Due > Now) {
      return false;
    }
    const int id = next->Id;
    const std::function<void()> event = next->Event;
    next->Due = Now + std::max<std::uint64_t>(next->Interval, 1);
    next->blnTicks = true;
    if (next->Timed == nullptr) {
      Line.erase(next);
    }
    event();
    std::ranges::for_each(Line, [id](Pending& one) { one.blnTicks &= one.Id != id; });
    return true;
  }

  bool blnPosted_ = false, blnInterrupted_ = false;
};

Clock& fncClock() {
  static auto* clock = new Clock;
  return *clock;
}

}  // namespace

QAbstractEventDispatcher* fncEventLoop() { return &fncClock(); }

void prcResetClock() {
  std::erase_if(fncClock().Line, [](const Pending& one) { return one.Timed == nullptr; });
  fncClock().Begin = fncClock().Now;
}

void prcWhenIdle(bool (*look)()) { fncClock().Look = look; }

void prcFlush() {
  while (fncClock().fncServePosted()) {
  }
}

}  // namespace stage

std::uint32_t user::Now() {
  return static_cast<std::uint32_t>(stage::fncClock().Now - stage::fncClock().Begin);
}

void user::After(std::uint32_t milliseconds, std::function<void()> handler) {
  stage::fncClock().Line.push_back({stage::fncClock().Now + milliseconds,
                                    [event = std::move(handler)] { qt::prcServe(event); }});
}

std::uint32_t platform::TickCount() { return user::Now(); }
