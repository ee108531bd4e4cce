#include "learn/CardNeed.h"

#include "learn/Advice.h"
#include "platform/Procedure.h"
#include "table/BaccTable.h"
#include "table/TableState.h"

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
  const Integer shoe = intShoeNumber;
  switch (int{Index}) {
    case 0:
      return {intPlayerValue2[shoe], intBankerTotal2[shoe]};
    case 1:
      return {intPlayerValue1[shoe], intBankerTotal2[shoe]};
    case 2:
      return {intPlayerTotal2[shoe],
              fncThirdRevealed(view, 5) ? intBankerTotal[shoe] : intBankerTotal2[shoe]};
    case 3:
      return {intBankerValue2[shoe], intPlayerTotal2[shoe]};
    case 4:
      return {intBankerValue1[shoe], intPlayerTotal2[shoe]};
    case 5:
      return {intBankerTotal2[shoe],
              fncThirdRevealed(view, 2) ? intPlayerTotal[shoe] : intPlayerTotal2[shoe]};
    default:
      throw faultSubscript;
  }
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
