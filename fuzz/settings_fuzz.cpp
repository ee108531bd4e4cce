#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/ProfileFile.h"

// Arbitrary bytes as a settings file: what is written is read back, other keys keep their values,
// and writing the same once more changes no byte.

namespace {

const std::string strFile = "VELMORA.INI";  // In the folder it is started in.
const ProfileKey keyWin{"Player1Stats", "Win", " -12.5"};

std::string fncContents() {
  std::ifstream file(strFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

void prcNeed(bool blnHolds) {
  if (!blnHolds) {
    std::abort();
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::ofstream(strFile, std::ios::binary) << std::string(data, data + size);
  const std::string other = fncReadProfile(strFile, "Misc", "UnitValue", "No");
  prcNeed(fncWriteProfile(strFile, {&keyWin, 1}));
  prcNeed(fncReadProfile(strFile, "player1stats", "WIN", "No") == "-12.5");
  prcNeed(fncReadProfile(strFile, "Misc", "UnitValue", "No") == other);
  const std::string after = fncContents();
  prcNeed(fncWriteProfile(strFile, {&keyWin, 1}));
  prcNeed(fncContents() == after);
  return 0;
}
