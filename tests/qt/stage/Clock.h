#pragma once

#include <QAbstractEventDispatcher>
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

// Time on the stage: the toolkit's event loop on a clock of our own. Nothing sleeps; where nothing
// is pending the clock goes on to the next timer or scripted event at once.

namespace stage {

class Clock : public QAbstractEventDispatcher {
  Q_OBJECT

 public:
  /// Milliseconds since Reset.
  std::uint64_t Now() const { return now_; }

  /// Forgets the script and begins at 0; timers that run go on.
  void Reset();

  /// Runs event once this many milliseconds from now have passed, or as the very next thing.
  void After(std::uint32_t milliseconds, std::function<void()> event);
  void AtNextTurn(std::function<void()> event);

  /// Called before the clock goes on, for a user who sees what is open; returns whether he did
  /// something.
  void WhenIdle(std::function<bool()> look) { idle_ = std::move(look); }

  /// Delivers what the toolkit and the window system have posted. No time passes, no timer ticks.
  void Flush();

  bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
  void registerTimer(int id, qint64 interval, Qt::TimerType type, QObject* object) override;
  bool unregisterTimer(int id) override;
  bool unregisterTimers(QObject* object) override;
  QList<TimerInfo> registeredTimers(QObject* object) const override;
  int remainingTime(int id) override;
  void registerSocketNotifier(QSocketNotifier* /*notifier*/) override {}
  void unregisterSocketNotifier(QSocketNotifier* /*notifier*/) override {}
  void wakeUp() override { blnPosted_ = true; }
  void interrupt() override { blnInterrupted_ = true; }

 private:
  struct Timer {
    int Id;
    qint64 Interval;
    Qt::TimerType Type;
    QObject* Object;
    std::uint64_t Due;
    bool blnTicks = false;  ///< Its handler runs: a timer does not tick into itself.
  };
  struct Scripted {
    std::uint64_t Due;
    std::function<void()> Event;
  };

  bool fncServePosted();
  bool fncServeScript();
  bool fncServeTimer();
  bool fncGoOn();
  Timer* fncFirst();
  Timer* fncFind(int id);

  std::uint64_t now_ = 0;
  std::vector<Timer> timers_;
  std::deque<Scripted> script_;
  std::function<bool()> idle_;
  bool blnPosted_ = false, blnInterrupted_ = false;
};

/// The clock of this process; made before the application object.
Clock& TheClock();

}  // namespace stage
