#include "tests/qt/stage/Clock.h"

#include <QCoreApplication>
#include <QTimerEvent>
#include <algorithm>

#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"

/// Exported by the toolkit for event loops like this one, but told in none of its public headers.
class QWindowSystemInterface {
 public:
  static bool sendWindowSystemEvents(QEventLoop::ProcessEventsFlags flags);
};

namespace stage {

Clock& TheClock() {
  static auto* clock = new Clock;  // The application object takes it down.
  return *clock;
}

void Clock::Reset() {
  script_.clear();
  for (Timer& timer : timers_) {
    timer.Due -= std::min(timer.Due, now_);
  }
  now_ = 0;
}

void Clock::After(std::uint32_t milliseconds, std::function<void()> event) {
  script_.push_back({now_ + milliseconds, std::move(event)});
}

void Clock::AtNextTurn(std::function<void()> event) { script_.push_front({0, std::move(event)}); }

void Clock::Flush() {
  while (fncServePosted()) {
  }
}

bool Clock::processEvents(QEventLoop::ProcessEventsFlags flags) {
  blnInterrupted_ = false;
  emit awake();
  for (;;) {
    bool blnServed = fncServePosted();
    while (!blnInterrupted_ && (fncServeScript() || fncServeTimer())) {
      blnServed = true;
    }
    if (blnServed || blnInterrupted_ || !flags.testFlag(QEventLoop::WaitForMoreEvents)) {
      return blnServed;
    }
    emit aboutToBlock();
    if (idle_ && idle_()) {
      return true;
    }
    if (!fncGoOn()) {
      qWarning("the program waits for what can never come");
      qt::prcNoteEnd();
      return false;
    }
  }
}

bool Clock::fncServePosted() {
  const bool blnPosted = std::exchange(blnPosted_, false);
  QCoreApplication::sendPostedEvents();
  return QWindowSystemInterface::sendWindowSystemEvents(QEventLoop::AllEvents) || blnPosted;
}

bool Clock::fncServeScript() {
  const auto next = std::ranges::min_element(script_, {}, &Scripted::Due);
  if (next == script_.end() || next->Due > now_) {
    return false;
  }
  const std::function<void()> event = std::move(next->Event);
  script_.erase(next);
  qt::prcServe(event);
  return true;
}

Clock::Timer* Clock::fncFirst() {
  Timer* first = nullptr;
  for (Timer& timer : timers_) {
    if (!timer.blnTicks && (first == nullptr || timer.Due < first->Due)) {
      first = &timer;
    }
  }
  return first;
}

Clock::Timer* Clock::fncFind(int id) {
  const auto found = std::ranges::find(timers_, id, &Timer::Id);
  return found == timers_.end() ? nullptr : &*found;
}

bool Clock::fncServeTimer() {
  Timer* first = fncFirst();
  if (first == nullptr || first->Due > now_) {
    return false;
  }
  const int id = first->Id;
  first->Due = now_ + static_cast<std::uint64_t>(std::max<qint64>(first->Interval, 1));
  first->blnTicks = true;
  QTimerEvent tick(id);
  QCoreApplication::sendEvent(first->Object, &tick);
  if (Timer* still = fncFind(id); still != nullptr) {
    still->blnTicks = false;
  }
  return true;
}

bool Clock::fncGoOn() {
  const Timer* timer = fncFirst();
  const auto next = std::ranges::min_element(script_, {}, &Scripted::Due);
  if (timer == nullptr && next == script_.end()) {
    return false;
  }
  const std::uint64_t due =
      std::min(timer != nullptr ? timer->Due : ~0ULL, next != script_.end() ? next->Due : ~0ULL);
  now_ = std::max(now_, due);
  return true;
}

void Clock::registerTimer(int id, qint64 interval, Qt::TimerType type, QObject* object) {
  timers_.push_back({id, interval, type, object, now_ + static_cast<std::uint64_t>(interval)});
}

bool Clock::unregisterTimer(int id) {
  return std::erase_if(timers_, [&](const Timer& timer) { return timer.Id == id; }) != 0;
}

bool Clock::unregisterTimers(QObject* object) {
  return std::erase_if(timers_, [&](const Timer& timer) { return timer.Object == object; }) != 0;
}

QList<QAbstractEventDispatcher::TimerInfo> Clock::registeredTimers(QObject* object) const {
  QList<TimerInfo> found;
  for (const Timer& timer : timers_) {
    if (timer.Object == object) {
      found.append(TimerInfo(timer.Id, static_cast<int>(timer.Interval), timer.Type));
    }
  }
  return found;
}

int Clock::remainingTime(int id) {
  const Timer* timer = fncFind(id);
  return timer == nullptr ? -1 : static_cast<int>(timer->Due - std::min(timer->Due, now_));
}

}  // namespace stage
