#include <tuple>

#include "shell/HelpTopics.h"
#include "table/DrawRules.h"
#include "tests/Game.h"

namespace {

TEST(HelpPages, ThePictureOfTheDrawIsDrawnByTheRules) {
  const std::string picture = fncFile(VELMORA_HELP_PAGES "/pictures/draw.svg");
  const auto expect = [&](const std::string& field, const char* act) {
    EXPECT_NE(picture.find("id=\"" + field + "-" + act + "\""), std::string::npos) << field << act;
  };
  for (int total = 0; total <= 9; ++total) {
    expect("player" + std::to_string(total), fncNatural(total)       ? "natural"
                                             : fncPlayerDraws(total) ? "draws"
                                                                     : "stands");
    for (int third = 0; total < 8 && third <= 10; ++third) {
      const bool blnStood = third == 10;
      expect("banker" + std::to_string(total) + "-" + (blnStood ? "stood" : std::to_string(third)),
             fncBankerDraws(total, blnStood, blnStood ? 0 : third) ? "draws" : "stands");
    }
  }
}

TEST(HelpPages, TheTopicOfWhatHasTheFocusLeadsToItsPage) {
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"BaccTable", "", "first.html"},
      {"BaccTable", "txtUnitValue", "betting.html#chipvalue"},
      {"BaccTable", "pctCardBack", "squeezing.html"},
      {"frmCourse", "grdEdge", "luck.html"},
      {"MDIForm1", "", "menus.html"},
      {"KasSitas", "cmdOK", "index.html"}};
  const std::string index = fncFile(VELMORA_HELP_PAGES "/velmora.qhp");
  for (const auto& [name, focus, page] : rows) {
    Control focused;
    Window window;
    window.Name = name;
    focused.Name = focus;
    window.ActiveControl = *focus != 0 ? &focused : nullptr;
    const std::string entry =
        "id=\"context" + std::to_string(fncHelpTopic(window)) + "\" ref=\"" + page + "\"";
    EXPECT_NE(index.find(entry), std::string::npos) << name << focus << ' ' << entry;
  }
}

}  // namespace
