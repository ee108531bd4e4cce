#include <QTimer>
#include <cstring>

#include "bench/qt/Figures.h"
#include "bench/qt/Launch.h"
#include "bench/qt/LongEvening.h"
#include "bench/qt/Play.h"
#include "platform/UserInput.h"
#include "platform/platform.h"
#include "platform/qt/windows/Loop.h"
#include "platform/qt/windows/Reports.h"
#include "shell/Program.h"
#include "shell/StartScreen.h"
#include "table/BaccTable.h"

// The program itself, measured from within. Its one argument names the measurement; each prints
// lines of a name and a value and ends the program. bench/run gives it its display and settings.

namespace {

void prcTellStartScreen() { bench::prcTell("start_screen", bench::fncSinceStart()); }
void prcTellTable() { bench::prcTell("start_table", bench::fncSinceStart()); }

/// From the start button, pressed on a start screen that has come to rest, to the table.
void prcTellButton() {
  bench::prcRest(300);
  const double start = bench::fncNow();
  bench::prcWhenPainted(BaccTable.maisyk, [start] {
    bench::prcTell("button_table", bench::fncNow() - start);
    qt::prcNoteEnd();
  });
  qt::prcServe([] { prcUserClick(Plauk.cmdStart); });
}

struct Measurement {
  const char* Name;
  const Control& First;  ///< What must have been painted before it begins.
  void (*Measure)();
  int intRest;  ///< Milliseconds between that painting and the beginning.
  bool blnEnds = true;
};

const Measurement measurements[] = {
    {"start", Plauk.cmdStart, prcTellStartScreen, 0},
    {"table", BaccTable.maisyk, prcTellTable, 0},
    {"button", Plauk.cmdStart, prcTellButton, 0, false},
    {"idle", BaccTable.maisyk, bench::prcIdle, 1000},
    {"squeeze", BaccTable.maisyk, bench::prcSqueeze, 1000},
    {"shoes", BaccTable.maisyk, bench::prcShoes, 1000},
    {"memory", BaccTable.maisyk, bench::prcMemory, 0},
    {"evening", BaccTable.maisyk, bench::prcLongEvening, 1000},
};

const Measurement* msrChosen = nullptr;

void prcMeasure() {
  if (msrChosen->intRest > 0) {
    bench::prcRest(msrChosen->intRest);
  }
  msrChosen->Measure();
  if (msrChosen->blnEnds) {
    qt::prcNoteEnd();
  }
}

bool fncStart() {
  bench::prcWhenPainted(msrChosen->First, prcMeasure);
  return fncStartProgram();
}

}  // namespace

int main(int argc, char** argv) {
  for (const Measurement& measurement : measurements) {
    if (argc > 1 && std::strcmp(measurement.Name, argv[1]) == 0) {
      msrChosen = &measurement;
    }
  }
  if (msrChosen == nullptr) {
    bench::prcGiveUp("name a measurement, as bench/run does");
  }
  return platform::Run(argc, argv, fncStart);
}
