#include <cstdint>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "platform/ProfileFile.h"

// Arbitrary bytes as a settings file: what is written is read back, other keys keep their values,
// and writing the same once more changes no byte.

namespace {

const std::string strFile = "VELMORA.INI";  // In the folder it is started in.

/// The file behind a write.
std::string fncWritten() {
  const ProfileKey keyWin{"Player1Stats", "Win", " -12.5"};
  if (!fncWriteProfile(strFile, {&keyWin, 1})) {
    throw std::runtime_error("it cannot be written");
  }
  std::ifstream file(strFile, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string fncOther() { return fncReadProfile(strFile, "Misc", "UnitValue", "No"); }

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::ofstream(strFile, std::ios::binary) << std::string(data, data + size);
  const std::string other = fncOther(), after = fncWritten();
  if (fncReadProfile(strFile, "player1stats", "WIN", "No") != "-12.5" || fncOther() != other ||
      fncWritten() != after) {
    throw std::runtime_error("what is written is not what is read");
  }
  return 0;
}
