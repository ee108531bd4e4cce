#include "shell/ShoeSize.h"

#include <algorithm>
#include <limits>
#include <string>

#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "shell/ToolButtons.h"
#include "table/TableState.h"

namespace {

Control* tlbrDecksButton = nullptr;  // The button of the size in force; none for an odd size.

Control& fncSizeButton(int decks) { return fncToolButton("Decks" + std::to_string(decks)); }

/// The stored number of decks. What no Integer holds counts as the nearest one that fits, and so as
/// out of range.
Integer fncStoredDecks() {
  using Bounds = std::numeric_limits<std::int16_t>;
  return fncInteger(std::clamp(fncGetSetting(secShoeSize, keyDecks), double{Bounds::min()},
                               double{Bounds::max()}));
}

}  // namespace

bool fncChangeWanted() {
  if (!blnShuffled[intShoeNumber] || blnEndOfShoe[intShoeNumber]) {
    return true;
  }
  return platform::MsgBox("Note! change effective only after end of shoe",
                          platform::Icon::Exclamation, "Velmora", platform::Buttons::OkCancel,
                          platform::Answer::Cancel) == platform::Answer::Ok;
}

void prcDecks(Integer decks, Control& button) {
  const Procedure running("MDIForm1_prcDecks");
  intDecks[intShoeNumber] = decks;
  running.Step(2);
  for (int i = 0; i < MDIForm1.mnuShoeSizeDecks.size(); ++i) {
    MDIForm1.mnuShoeSizeDecks[i].Value = intShoeSizes[static_cast<std::size_t>(i)] == decks ? 1 : 0;
  }
  running.Step(3);
  prcWriteSetting(secShoeSize, keyDecks, decks);
  running.Step(4);
  prcSetButton(button, 1);
  tlbrDecksButton = &button;
}

void prcDecksButtonWarning(Integer decks, Control& button) {
  const Procedure running("MDIForm1_prcDecksButtonWarning");
  if (fncChangeWanted()) {
    running.Step(2);
    prcDecks(decks, button);
    return;
  }
  running.Step(3);
  // Last comes the press, so that a click on the size in force leaves it down.
  prcSetButton(button, 0);
  if (tlbrDecksButton != nullptr) {
    prcSetButton(*tlbrDecksButton, 1);
  }
}

void mnuShoeSizeDecks_Click(Control& entry) {
  if (fncChangeWanted()) {
    const int decks = intShoeSizes.at(static_cast<std::size_t>(std::int16_t{entry.Index}));
    prcDecks(decks, fncSizeButton(decks));
  }
}

void prcReadShoeSize() {
  for (Integer& decks : intDecks) {
    decks = fncStoredDecks();
  }
  for (Control& entry : MDIForm1.mnuShoeSizeDecks) {
    entry.Value = 0;
  }
  Integer& decks = intDecks[intShoeNumber];
  if (decks < intShoeSizes.front() || decks > intShoeSizes.back()) {
    decks = intShoeSizes.back();
  }
  tlbrDecksButton = nullptr;
  prcMarkShoeSize();
}

void prcMarkShoeSize() {
  const Integer decks = intDecks[intShoeNumber];
  if (std::ranges::find(intShoeSizes, int{decks}) != intShoeSizes.end()) {
    prcDecks(decks, fncSizeButton(decks));
  }
}
