#include "learn/CardNeed.h"

#include "learn/Advice.h"
#include "platform/Procedure.h"
#include "table/BaccTable.h"
#include "table/Positions.h"

namespace {

TableView fncTableView() {
  TableView view;
  for (int n = 0; n < intPositions; ++n) {
    view.Revealed[n] = !BaccTable.pctCardBack[n].Visible;
    view.Face[n] = BaccTable.pctCardFace[n].Visible;
  }
  return view;
}

AdviceNumbers fncAdviceNumbers(Integer Index, const TableView& view) {
  const HandSide own = fncHandSide(Index);
  const HandSide other = fncHandSide(own.First == 0 ? 3 : 0);
  if (Index == own.First + 2) {
    return {own.Total2, fncThirdRevealed(view, other.First + 2) ? other.Total : other.Total2};
  }
  const int partner = Index == own.First ? own.First + 1 : own.First;
  return {fncHandValue(intShoeNumber, partner), other.Total2};
}

}  // namespace

void CardNeed(const Integer& Index) {
  const Procedure running("Baccarat table CardNeed");
  BaccTable.blnCardNeedShown = true;
  running.Step(2);
  const TableView view = fncTableView();
  running.Step(3);
  const AdviceNumbers numbers = fncAdviceNumbers(Index, view);
  running.Step(4);
  std::string text;
  if (!fncAdvice(Index, view, numbers, text)) {
    return;
  }
  Control& label = Index < 3 ? BaccTable.lblCardNeedP : BaccTable.lblCardNeedB;
  label.Text = text;
  label.Visible = true;
}

void prcShowLearnPanels(bool blnShow) {
  if (blnShow) {
    BaccTable.lblCardNeedP.Text = strLearnDefault;
    BaccTable.lblCardNeedB.Text = strLearnDefault;
  }
  for (Control* part : {&BaccTable.shpCardNeedP, &BaccTable.lblCardNeedP, &BaccTable.shpCardNeedB,
                        &BaccTable.lblCardNeedB}) {
    part->Visible = blnShow;
  }
}

void prcHideLearnPanels() { prcShowLearnPanels(false); }
