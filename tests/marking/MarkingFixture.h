#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <string>

#include "marking/MarkCard.h"
#include "marking/MarkState.h"
#include "platform/headless/Headless.h"
#include "shell/MDIForm1.h"
#include "shell/SettingsStore.h"
#include "table/BaccTable.h"

/// The game as it starts, with an empty settings file, a laid-out table above a frame of 15360 by
/// 10500 twips, and no marking card open.
class MarkingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    // Tests may run side by side, each in a process of its own.
    const ::testing::TestInfo& test = *::testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::path(::testing::TempDir()) /
              (std::string("velmora-") + test.test_suite_name() + "." + test.name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    strIniFile = (folder_ / "VELMORA.INI").string();
    headless::Reset(folder_.string());
    prcResetTableState();
    prcResetMarkState();
    colMarkCards.clear();
    for (int i = 0; i < intShoes; ++i) {
      intMarkCardShoe[i] = i;
    }
    prcLayOutBaccTable();
    BaccTable.Form.Top = 0;
    BaccTable.Form.Height = 5000;
    MDIForm1.Form.Width = 15360;
    MDIForm1.Form.Height = 10500;
  }

  void TearDown() override { std::filesystem::remove_all(folder_); }

  /// Ends a hand of shoe with this result; the units are those of the card with the same number.
  static void prcHand(char result, std::optional<Integer> units = std::nullopt, int shoe = 0) {
    strResult[shoe] = std::string(1, result);
    varHandUnits[shoe] = units;
    intHandsDealt[shoe] += 1;
  }

  /// Places a run of results without units on card 0, in its window if it has one.
  static void prcDeal(const std::string& results) {
    for (const char result : results) {
      prcHand(result);
      SetCardView(0);
    }
  }

  /// What a shuffle does to card 0.
  static void prcNewShoe() {
    ClearCardView(0);
    intHandsDealt[0] = intScoreUnits[0] = intRun[0] = intColumn[0] = intTieRun[0] = 0;
    blnScoreStarted[0] = false;
  }

  /// Opens card 0 and gives it an inner size, as a screen would.
  static MarkCardWindow& fncOpen(double width = 14600, double height = 3400) {
    NewCardViewForm(0, 0);
    prcSize(width, height);
    return MarkCards[0];
  }

  static void prcSize(double width, double height) {
    Window& form = MarkCards[0].Form;
    form.ScaleWidth = width;
    form.ScaleHeight = height;
    form.On->Resize(form);
  }

 private:
  std::filesystem::path folder_;
};
