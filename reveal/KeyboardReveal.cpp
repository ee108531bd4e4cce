#include "reveal/KeyboardReveal.h"

#include "reveal/CardReveal.h"
#include "table/BaccTable.h"
#include "table/TableState.h"

namespace {

constexpr int intNone = -1;

bool fncWaits(int n) {
  return n >= 0 && n < intPositions && BaccTable.pctCardBack[n].Visible && blnCardClickable[n];
}

/// The position whose back has the focus, turned or not, or intNone.
int fncChosen() {
  for (int n = 0; n < intPositions; ++n) {
    if (BaccTable.Form.ActiveControl == &BaccTable.pctCardBack[n]) {
      return n;
    }
  }
  return intNone;
}

/// The next waiting card from a position in the direction 1 or -1, around the table, or intNone.
int fncNeighbour(int from, int direction) {
  if (from == intNone && direction < 0) {
    from = 0;
  }
  for (int away = 1; away <= intPositions; ++away) {
    const int n = (from + direction * away + intPositions) % intPositions;
    if (fncWaits(n)) {
      return n;
    }
  }
  return intNone;
}

void prcChoose(int n) {
  if (fncWaits(n) && fncSetFocus(BaccTable.pctCardBack[n])) {
    prcAdviseChosen(n);
  }
}

}  // namespace

void prcRevealKey(const std::string& strKey) {
  const bool blnNext = strKey == "Right" || strKey == "Down";
  if (blnNext || strKey == "Left" || strKey == "Up") {
    prcChoose(fncNeighbour(fncChosen(), blnNext ? 1 : -1));
  } else if (strKey == "Enter" || strKey == "Return" || strKey == "Space" || strKey == " ") {
    if (const int n = fncChosen(); fncWaits(n)) {
      pctCardBack_Click(n);
    }
  } else if (strKey == "Tab") {
    prcChoose(fncChosen());
  } else if (strKey.size() == 1) {
    prcChoose(strKey.front() - '1');
  }
}
