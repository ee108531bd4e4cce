#include "shell/HelpTopics.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "platform/platform.h"
#include "shell/SettingsStore.h"

namespace {

/// The keyword "context" and this number leads to the page, in assets/help/velmora.qhp.
enum Topic : std::uint8_t {
  topWelcome = 1,
  topFirstHand = 3,
  topBetting,
  topChipValue,
  topDealing,
  topShuffling,
  topTurning,
  topMarkingCard,
  topCardsDealt,
  topStatistics,
  topHands,
  topCourse,
  topLuck,
  topMenus
};

struct TopicRow {
  std::string_view Name;
  Topic Page;
};

/// Controls that a page of their own tells about, by name; all others go by their window.
constexpr TopicRow topOfControl[] = {
    {"txtTieBet", topBetting},      {"txtBankerBet", topBetting}, {"txtPlayerBet", topBetting},
    {"txtUnitValue", topChipValue}, {"duokkortos", topDealing},   {"mskHandsAtaTime", topDealing},
    {"maisyk", topShuffling},       {"pctCardBack", topTurning},  {"pctCardFace", topTurning},
    {"grdEdge", topLuck},
};

constexpr TopicRow topOfWindow[] = {
    {"MDIForm1", topMenus},           {"BaccTable", topFirstHand},
    {"MarkCard", topMarkingCard},     {"frmCardsDealt", topCardsDealt},
    {"frmStatistics", topStatistics}, {"frmCardsDealtCount", topCardsDealt},
    {"frmHands", topHands},           {"frmCourse", topCourse},
    {"frmSelectaShoe", topShuffling}, {"frmKaNori", topMenus},
};

template <std::size_t Rows>
int fncFind(const TopicRow (&rows)[Rows], std::string_view name, int otherwise) {
  const auto* const row = std::ranges::find(rows, name, &TopicRow::Name);
  return row != std::end(rows) ? row->Page : otherwise;
}

}  // namespace

int fncHelpTopic(const Window& window) {
  const int page = fncFind(topOfWindow, window.Name, topWelcome);
  return window.ActiveControl == nullptr ? page
                                         : fncFind(topOfControl, window.ActiveControl->Name, page);
}

void prcHelpOn(const Window& window) { platform::ShowHelp(strHelpFile, fncHelpTopic(window)); }
