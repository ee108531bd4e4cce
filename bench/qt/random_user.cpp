#include <QApplication>
#include <QFile>
#include <QTimer>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>

#include "bench/Invariants.h"
#include "bench/UserEvents.h"
#include "marking/MarkState.h"
#include "platform/Procedure.h"
#include "platform/qt/windows/Loop.h"
#include "shell/MDIForm1.h"
#include "shell/Program.h"
#include "table/BaccTable.h"
#include "tests/conformance/Adapter.h"

// velmora_qt_endurance [SEED [HANDS]]: a random user at the real widgets, with real mouse and key
// events, watched after each, until so many hands are dealt. Plays beside its own settings file, in
// the folder it lies in. Prints counts, or the fault with its seed and what the user did since the
// program's last start.

namespace {

/// Milliseconds for each step of an event's delay. Real waits last, so the user is quick.
constexpr int intQuickStep = 2;

constexpr const char* strFirstFile =
    "[frmBaccTable]\r\nHeight= 5400\r\nWidth= 10770\r\n"
    "[Misc]\r\nUnitValue= 10\r\nNerodik=1\r\n"
    "[Deal]\r\nDelay=False\r\nAnimation=False\r\n"
    "[Player1Stats]\r\nStake= 5000\r\n[Player2Stats]\r\nStake= 5000\r\n"
    "[Shoe Size]\r\nDecks= 1\r\n";

struct Evening {
  std::mt19937_64 Random{};
  std::int64_t Wanted = 0;
  Watch Watching{};
  std::string Fault{}, Told{};
  std::int64_t Events = 0, Starts = 0;

  bool fncOver() const { return Watching.Hands() >= Wanted || !Fault.empty(); }
};

Evening evening;

void prcLook() {
  if (evening.Fault.empty()) {
    evening.Fault = evening.Watching.fncLook();
  }
  if (evening.Fault.empty()) {
    evening.Fault = evening.Watching.fncLookAtSwitches();
  }
}

void prcNext() {
  if (user::Ended()) {
    return;
  }
  if (evening.fncOver()) {
    user::Close(MDIForm1.Form);
    return;
  }
  const UserEvent event = fncRandomEvent(evening.Random);
  // The next one is under way before this one begins: it may come in the middle of it.
  QTimer::singleShot(event.Delay * intQuickStep, qApp, prcNext);
  ++evening.Events;
  evening.Told += "  " + fncDescribe(event) + "\n";
  prcDo(event);
  prcLook();
}

bool fncStart() {
  user::Reset();
  prcResetTableState();
  prcResetMarkState();
  evening.Told.clear();
  ++evening.Starts;
  if (!fncStartProgram()) {
    return false;
  }
  QTimer::singleShot(500, qApp, [] {
    evening.Watching.prcStart();
    prcNext();
  });
  return true;
}

void prcWriteFirstFile(const char* program) {
  QFile file(QString::fromLocal8Bit(program).section(QLatin1Char('/'), 0, -2) +
             QStringLiteral("/VELMORA.INI"));
  if (!file.open(QIODevice::WriteOnly) || file.write(strFirstFile) < 0) {
    std::fprintf(stderr, "cannot write the settings file\n");
    std::exit(EXIT_FAILURE);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  const std::uint64_t seed = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 1;
  evening.Random.seed(seed);
  evening.Wanted = argc > 2 ? std::atoll(argv[2]) : 1000;
  prcWriteFirstFile(argv[0]);
  while (!evening.fncOver()) {
    qt::prcForgetEnd();
    platform::Run(argc, argv, fncStart);
    prcLook();  // At what may have ended it.
  }
  std::printf("%" PRId64 " events, %" PRId64 " shoes, %" PRId64 " hands, %" PRId64
              " starts of the program\n",
              evening.Events, evening.Watching.Shoes(), evening.Watching.Hands(), evening.Starts);
  if (!evening.Fault.empty()) {
    std::printf("%s\nseed %" PRIu64 ", after\n%s", evening.Fault.c_str(), seed,
                evening.Told.c_str());
  }
  return evening.Fault.empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
