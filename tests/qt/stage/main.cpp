#include <gtest/gtest.h>

#include "judges/Adapter.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  return user::Play(argc, argv, [] { return RUN_ALL_TESTS(); });
}
