#include "shell/Closing.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "marking/MarkCard.h"
#include "platform/Procedure.h"
#include "platform/platform.h"
#include "shell/CardsDealt.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsKeys.h"
#include "shell/WindowPlace.h"
#include "shell/frmSelectaShoe.h"
#include "table/BaccTable.h"

namespace {

void prcCloseMarkCards() {
  // Each closing takes its window out of the collection.
  std::vector<MarkCardWindow*> open;
  open.reserve(colMarkCards.size());
  for (const auto& [handle, card] : colMarkCards) {
    open.push_back(card);
  }
  for (MarkCardWindow* card : open) {
    fncUnload(card->Form);
  }
}

/// What else floats, such as the windows of the evening: each keeps its place.
void prcCloseFloats() {
  // Each closing may take its window off the loaded ones.
  std::vector<Window*> floats;
  std::ranges::copy_if(fncWindows(), std::back_inserter(floats),
                       [](const Window* window) { return window->Kind == WindowKind::Float; });
  for (Window* window : floats) {
    fncUnload(*window);
  }
}

}  // namespace

void MDIForm1_Unload() {
  const Procedure running("MDIForm1_Unload");
  prcWritePlace(MDIForm1.Form, secFrame, PlaceKeys::Whole);
  running.Step(2);
  fncUnload(frmCardsDealt.Form);
  fncUnload(frmCardsDealtCount.Form);
  fncUnload(BaccTable.Form);
  prcCloseMarkCards();
  fncUnload(frmSelectaShoe.Form);
  prcCloseFloats();
  // The frame's own unload is what runs here.
  prcForgetWindow(MDIForm1.Form);
  running.Step(3);
  platform::End();
}
