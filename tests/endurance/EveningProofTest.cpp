#include "judges/EveningProof.h"
#include "tests/Game.h"

namespace {

TEST(EveningProofTest, EveningsAtTheRunningTableComeOutAsTheLawSays) {
  const TestFolder folder;
  prcFreshGame(folder.Path());
  const EveningProof proof = fncProveEvenings(50, 1, folder.Path());
  EXPECT_EQ(proof.Evenings, 50);
  EXPECT_TRUE(proof.fncHolds()) << proof.InHalf << ' ' << proof.InNine << ' '
                                << proof.fncTenthsSum() << ' ' << proof.Deviation[2];
}

}  // namespace
