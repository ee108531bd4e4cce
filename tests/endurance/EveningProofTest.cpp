#include <gtest/gtest.h>

#include "judges/EveningProof.h"

TEST(EveningProofTest, EveningsAtTheRunningTableComeOutAsTheLawSays) {
  EXPECT_TRUE(fncProveEvenings(50, 1).fncHolds()) << "velmora_evening 50 tells what does not";
}
