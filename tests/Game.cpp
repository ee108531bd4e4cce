#include "tests/Game.h"

#include <filesystem>
#include <fstream>
#include <iterator>

#include "betting/frmStatistics.h"
#include "marking/MarkState.h"
#include "platform/Procedure.h"
#include "platform/ProfileFile.h"
#include "platform/Texts.h"
#include "platform/UserInput.h"
#include "shell/Program.h"

namespace {

/// Lets time pass until the shuffle or hand is over, at most this long on the virtual clock.
constexpr std::uint32_t lngLongestHand = 120'000;

void prcWaitUntilIdle() {
  const std::uint32_t start = user::Now();
  while (blnBusy && !user::Ended() && user::Now() - start < lngLongestHand) {
    user::Wait(100);
  }
}

}  // namespace

void prcFreshGame(const std::string& folder) {
  user::Reset(folder);
  prcResetTableState();
  prcResetMarkState();
  strIniFile = folder + "/VELMORA.INI";
  strHelpFile = folder + "/VELMORA.HLP";
}

std::string fncFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string fncPiped(std::string text) {
  for (std::size_t at = text.find("\r\n"); at != std::string::npos; at = text.find("\r\n")) {
    text.replace(at, 2, "|");
  }
  return text;
}

Game::~Game() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void Game::SetUp() {
  prcFreshGame(Folder());
  for (const char* seat : {"Player1Stats", "Player2Stats"}) {
    Setting(seat, "Stake", " 1000");
  }
  Setting("Misc", "UnitValue", "10");
  Setting("Misc", "Nerodik", "1");
  Setting("frmBaccTable", "Height", " 5400");
  Setting("frmBaccTable", "Width", " 10770");
}

void Game::Setting(const std::string& section, const std::string& key, const std::string& value) {
  const ProfileKey row{section, key, value};
  ASSERT_TRUE(fncWriteProfile(strIniFile, {&row, 1}));
}

std::string Game::Stored(const std::string& section, const std::string& key) {
  return fncReadProfile(strIniFile, section, key, "No");
}

void Game::WriteFile(const std::string& contents) {
  std::filesystem::remove_all(strIniFile);
  std::ofstream(strIniFile, std::ios::binary) << contents;
}

std::string Game::Contents() { return fncFile(strIniFile); }

void Game::Start() {
  user::Run(fncStartProgram);
  user::Wait(10);
  ShowNoCardsSlowly();
}

void Game::ShowNoCardsSlowly() {
  blnCardFaceUp = true;
  blnDealDelay = blnDealAnimation = false;
}

void Game::Shuffle(std::uint64_t seed) {
  headless::Seed(seed);
  if (!blnEndOfShoe[intShoeNumber]) {
    user::Answer(platform::Answer::Ok);
  }
  ASSERT_TRUE(user::Click(BaccTable.maisyk));
  prcWaitUntilIdle();
  user::ForgetBoxes();
}

void Game::NextCards(const std::vector<int>& values) {
  SlotRow& order = intShoeCards[intShoeNumber];
  int position = intNextCard[intShoeNumber];
  for (const int value : values) {
    int behind = position;  // A shoe that holds no more of them ends in a fault of its row's.
    while (intCardValue[intShoeNumber][order[behind]] != value) {
      ++behind;
    }
    std::swap(order[position++], order[behind]);
  }
}

void Game::NextResult(const std::string& results) {
  std::vector<int> values;
  for (const char result : results) {
    // Player, Banker, Player, Banker: 9 against 7, 7 against 9, or both 7 on two cards.
    values.insert(values.end(), {13, 13, result == 'P' ? 9 : 7, result == 'B' ? 9 : 7});
  }
  NextCards(values);
}

bool Game::Bet(BetSide side, int seat, const std::string& chips) {
  Control& box = fncBet(side, seat).Box;
  return user::Type(box, chips) && user::Tab(BaccTable.Form);
}

void Game::Deal(int hands) {
  if (hands != 1) {
    ASSERT_TRUE(user::Type(BaccTable.mskHandsAtaTime, std::to_string(hands)));
  }
  ASSERT_TRUE(user::Click(BaccTable.duokkortos[0]));
  prcWaitUntilIdle();
}

void Game::DealResult(const std::string& result) {
  NextResult(result);
  Deal();
}

void Game::ResetStatistics() {
  user::WhileModal([] {
    user::Answer(platform::Answer::Ok);
    user::Click(frmStatistics.cmdResetStats);
    user::Close(frmStatistics.Form);
  });
  user::Click(MDIForm1.mnuStatistics);
}

std::string Game::LastBox() { return user::Boxes().empty() ? "" : user::Boxes().back().Text; }
