#include <array>

#include "shell/CardsDealt.h"
#include "shell/Switches.h"
#include "table/BaccTable.h"
#include "tests/shell/RunningProgram.h"

namespace {

class Switches : public RunningProgram {};

/// The four faces of a switch, as a user of the settings file knows them.
struct Faces {
  Control& Entry;
  const char* Button;
  const char* Section;
  const char* Key;
  bool* Flag;
};

const std::array faces{
    Faces{MDIForm1.mnuLearn, "Learn", "File", "Learn", &blnLearn},
    Faces{MDIForm1.mnuCardFaceUpDown, "CardFaceUp", "Card Options", "Card Face Up", &blnCardFaceUp},
    Faces{MDIForm1.mnuShowCardValues, "CardValues", "Card Options", "Show Card Values",
          &blnShowCardValues},
    Faces{MDIForm1.mnuShowCardsDealt, "CardsDealt", "Card Options", "Show Cards Dealt", nullptr},
    Faces{MDIForm1.mnuShowCardsDealtCount, "CardsDealtCount", "Card Options",
          "Show Cards Dealt Count", &blnShowCardsDealtCount},
    Faces{MDIForm1.mnuShowScore, "ShowScore", "Marking Options", "Show Score", &blnShowScore},
    Faces{MDIForm1.mnuShowNaturals, "ShowNaturals", "Marking Options", "Show Naturals",
          &blnShowNaturals},
    Faces{MDIForm1.mnuPlayerBlue, "PlayerBlue", "Player Blue", "PlayerBlue", &blnPlayerBlue},
    Faces{MDIForm1.mnuDealDelay, "Delay", "Deal", "Delay", &blnDealDelay},
    Faces{MDIForm1.mnuDealAnimation, "Animation", "Deal", "Animation", &blnDealAnimation},
};

void prcExpectFaces(const Faces& row, bool blnOn) {
  EXPECT_EQ(row.Entry.Value, blnOn ? 1 : 0);
  EXPECT_EQ(fncToolButton(row.Button).Value, blnOn ? 1 : 0);
  if (row.Flag != nullptr) {
    EXPECT_EQ(*row.Flag, blnOn);
  }
}

/// A settings file in which one key has a value, for the large or the small toolbar.
std::string fncFileWith(const Faces& row, const std::string& value, bool blnLarge) {
  return "[" + std::string(row.Section) + "]\r\n" + row.Key + "=" + value +
         "\r\n[Options]\r\nLarge Buttons=" + (blnLarge ? "True" : "False") + "\r\n";
}

TEST_F(Switches, TheFourFacesStayInStepFromMenuAndBothToolbars) {
  for (const Faces& row : faces) {
    for (const bool blnLarge : {true, false}) {
      for (const bool blnMenu : {true, false}) {
        for (const bool blnStart : {true, false}) {
          SCOPED_TRACE(std::string(row.Button) + (blnLarge ? " large" : " small") +
                       (blnMenu ? " menu" : " button") + (blnStart ? " on" : " off"));
          prcPlay(fncFileWith(row, blnStart ? "True" : "False", blnLarge));
          prcExpectFaces(row, blnStart);
          bool blnOn = blnStart;
          for (int click = 0; click < 3; ++click) {
            headless::Click(blnMenu ? row.Entry : fncToolButton(row.Button));
            blnOn = !blnOn;
            prcExpectFaces(row, blnOn);
            EXPECT_EQ(fncKey(row.Section, row.Key), blnOn ? "True" : "False");
          }
          EXPECT_TRUE(headless::Boxes().empty());
        }
      }
    }
  }
}

TEST_F(Switches, OnlyTheExactTextFalseIsOff) {
  for (const Faces& row : faces) {
    for (const char* value : {"false", "FALSE", "0", "No", "", "Falsehood"}) {
      SCOPED_TRACE(std::string(row.Button) + " " + value);
      prcPlay(fncFileWith(row, value, true));
      prcExpectFaces(row, true);
    }
  }
}

TEST_F(Switches, EachActsOnItsWindow) {
  prcPlay("[File]\r\nLearn=False\r\n");
  EXPECT_FALSE(BaccTable.shpCardNeedP.Visible);
  headless::Click(MDIForm1.mnuLearn);
  for (const Control* panel : {&BaccTable.shpCardNeedP, &BaccTable.lblCardNeedP,
                               &BaccTable.shpCardNeedB, &BaccTable.lblCardNeedB}) {
    EXPECT_TRUE(panel->Visible) << panel->Name;
  }
  headless::Click(fncToolButton("Learn"));
  EXPECT_FALSE(BaccTable.lblCardNeedB.Visible);

  // On from the file, the count shows at once and the list only after off and on.
  EXPECT_TRUE(frmCardsDealtCount.Form.Visible);
  EXPECT_FALSE(frmCardsDealt.Form.Visible);
  headless::Click(MDIForm1.mnuShowCardsDealt);
  EXPECT_FALSE(frmCardsDealt.Form.Visible);
  headless::Click(fncToolButton("CardsDealt"));
  EXPECT_TRUE(frmCardsDealt.Form.Visible);
  headless::Click(fncToolButton("CardsDealtCount"));
  EXPECT_FALSE(frmCardsDealtCount.Form.Visible);
}

/// A change that acts from the next shoe on.
struct Change {
  const char* Case;
  bool blnShuffled, blnEnded;
  platform::Answer Answer;
  bool blnWarned, blnChanged;
};

constexpr std::array changes{
    Change{"not yet shuffled", false, true, platform::Answer::Cancel, false, true},
    Change{"ended", true, true, platform::Answer::Cancel, false, true},
    Change{"in play, taken back", true, false, platform::Answer::Cancel, true, false},
    Change{"in play, wanted", true, false, platform::Answer::Ok, true, true},
};

void prcExpectWarning(bool blnWarned) {
  ASSERT_EQ(headless::Boxes().size(), blnWarned ? 1U : 0U);
  if (blnWarned) {
    const headless::Box& box = headless::Boxes().front();
    EXPECT_EQ(box.Text, "Note! change effective only after end of shoe");
    EXPECT_EQ(box.Title, "Velmora");
    EXPECT_EQ(box.Icon, platform::Icon::Exclamation);
    EXPECT_EQ(box.Buttons, platform::Buttons::OkCancel);
    EXPECT_EQ(box.Standard, platform::Answer::Cancel);
  }
}

TEST_F(Switches, PlayerBlueWarnsOnceWhileAShoeIsInPlay) {
  for (const Change& row : changes) {
    for (const bool blnMenu : {true, false}) {
      SCOPED_TRACE(std::string(row.Case) + (blnMenu ? " menu" : " button"));
      prcPlay("[Player Blue]\r\nPlayerBlue=False\r\n");
      blnShuffled[0] = row.blnShuffled;
      blnEndOfShoe[0] = row.blnEnded;
      headless::Answer(row.Answer);
      headless::Click(blnMenu ? MDIForm1.mnuPlayerBlue : fncToolButton("PlayerBlue"));
      prcExpectWarning(row.blnWarned);
      prcExpectFaces(faces[7], row.blnChanged);
      EXPECT_EQ(fncKey("Player Blue", "PlayerBlue"), row.blnChanged ? "True" : "False");
      EXPECT_FALSE(blnShoePlayerBlue[0]);  // The shoe on the table keeps its colours.
    }
  }
}

/// Which size is marked: by its entry, its button and the file.
void prcExpectSize(int decks) {
  for (std::size_t i = 0; i < intShoeSizes.size(); ++i) {
    const int marked = intShoeSizes[i] == decks ? 1 : 0;
    EXPECT_EQ(MDIForm1.mnuShoeSizeDecks[static_cast<int>(i)].Value, marked) << intShoeSizes[i];
    EXPECT_EQ(fncToolButton("Decks" + std::to_string(intShoeSizes[i])).Value, marked)
        << intShoeSizes[i];
  }
}

TEST_F(Switches, TheShoeSizeWarnsOnceWhileAShoeIsInPlay) {
  for (const Change& row : changes) {
    for (const bool blnMenu : {true, false}) {
      for (const bool blnLarge : {true, false}) {
        SCOPED_TRACE(std::string(row.Case) + (blnMenu ? " menu" : " button"));
        prcPlay(std::string("[Shoe Size]\r\nDecks=6\r\n[Options]\r\nLarge Buttons=") +
                (blnLarge ? "True" : "False"));
        blnShuffled[0] = row.blnShuffled;
        blnEndOfShoe[0] = row.blnEnded;
        headless::Answer(row.Answer);
        headless::Click(blnMenu ? MDIForm1.mnuShoeSizeDecks[1] : fncToolButton("Decks2"));
        prcExpectWarning(row.blnWarned);
        const int decks = row.blnChanged ? 2 : 6;
        prcExpectSize(decks);
        EXPECT_EQ(intDecks[0], decks);
        EXPECT_EQ(fncKey("Shoe Size", "Decks"), std::to_string(decks));
      }
    }
  }
}

TEST_F(Switches, ASizeInForceStaysDownWhenItsOwnClickIsTakenBack) {
  prcPlay("[Shoe Size]\r\nDecks=4\r\n");
  prcShoeInPlay();
  headless::Click(fncToolButton("Decks4"));
  prcExpectSize(4);
}

TEST_F(Switches, TheStoredSizeIsCheckedBeforeItIsUsed) {
  const struct {
    const char* Stored;
    int Decks, Marked;
  } rows[] = {{"1", 1, 1},    {"8", 8, 8}, {"0", 8, 8},           {"-3", 8, 8},
              {"9", 8, 8},    {"x", 8, 8}, {"3", 3, 0},           {"2.5", 2, 2},
              {"5.5 ", 6, 6}, {"7", 7, 0}, {"99999999999", 8, 8}, {"-99999", 8, 8}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.Stored);
    prcPlay(std::string("[Shoe Size]\r\nDecks=") + row.Stored + "\r\n");
    EXPECT_EQ(intDecks[0], row.Decks);
    prcExpectSize(row.Marked);
    EXPECT_TRUE(headless::Boxes().empty());
  }
  // From a size between the five, a taken back click leaves nothing marked.
  prcPlay("[Shoe Size]\r\nDecks=3\r\n");
  prcShoeInPlay();
  headless::Click(fncToolButton("Decks2"));
  prcExpectSize(0);
  EXPECT_EQ(intDecks[0], 3);
}

TEST_F(Switches, ArrowsAndHandsActAsOneSwitch) {
  for (const bool blnStart : {true, false}) {
    for (const char* face : {"mnuArrows", "mnuHands", "RevealArrows", "RevealHands"}) {
      SCOPED_TRACE(std::string(face) + (blnStart ? " from arrows" : " from hands"));
      prcPlay(blnStart ? "" : "[Reveal]\r\nArrows=False\r\n");
      const std::string name = face;
      headless::Click(name == "mnuArrows"  ? MDIForm1.mnuArrows
                      : name == "mnuHands" ? MDIForm1.mnuHands
                                           : fncToolButton(name));
      const bool blnArrows = !blnStart;
      EXPECT_EQ(MDIForm1.mnuArrows.Value, blnArrows ? 1 : 0);
      EXPECT_EQ(MDIForm1.mnuHands.Value, blnArrows ? 0 : 1);
      EXPECT_EQ(fncToolButton("RevealArrows").Value, blnArrows ? 1 : 0);
      EXPECT_EQ(fncToolButton("RevealHands").Value, blnArrows ? 0 : 1);
      EXPECT_EQ(fncKey("Reveal", "Arrows"), blnArrows ? "True" : "False");
      EXPECT_EQ(BaccTable.lblCardRight[5].MousePointer == Pointer::HandRight, !blnArrows);
    }
  }
}

TEST_F(Switches, ChangingTheToolbarCarriesEveryStateOver) {
  prcPlay("[Options]\r\nLarge Buttons=False\r\n[Reveal]\r\nArrows=False\r\n");
  EXPECT_EQ(tlbrRef, &MDIForm1.tlbrMDIForm2);
  EXPECT_FALSE(MDIForm1.tlbrMDIForm1.Visible || MDIForm1.tlbrMDIForm1.Enabled);
  headless::Click(fncToolButton("Decks4"));
  headless::Click(fncToolButton("Animation"));

  headless::Click(MDIForm1.mnuLargeButtons);
  headless::Wait(5);
  EXPECT_EQ(fncKey("Options", "Large Buttons"), "True");
  EXPECT_TRUE(MDIForm1.tlbrMDIForm1.Visible && MDIForm1.tlbrMDIForm1.Enabled);
  EXPECT_FALSE(MDIForm1.tlbrMDIForm2.Visible || MDIForm1.tlbrMDIForm2.Enabled);
  EXPECT_EQ(tlbrRef, &MDIForm1.tlbrMDIForm1);
  prcExpectSize(4);
  EXPECT_EQ(fncToolButton("Animation").Value, 0);
  EXPECT_EQ(fncToolButton("Delay").Value, 1);
  EXPECT_EQ(fncToolButton("RevealHands").Value, 1);

  // The size in force is now known by its large button.
  prcShoeInPlay();
  headless::Click(fncToolButton("Decks8"));
  prcExpectSize(4);
}

TEST_F(Switches, HiddenEntriesAndButtonsStayHidden) {
  prcPlay();
  for (const Control* entry : {&MDIForm1.mnuOptions, &MDIForm1.mnuSep6}) {
    EXPECT_FALSE(entry->Visible) << entry->Name;
  }
  for (auto* buttons : {&MDIForm1.tlbrButtons1, &MDIForm1.tlbrButtons2}) {
    for (const Control& button : *buttons) {
      const std::string key = button.Name;
      const bool blnHidden = key == "SelectaShoe" || key == "Options";
      EXPECT_EQ(button.Visible && button.Enabled, !blnHidden) << key;
    }
  }
}

}  // namespace
