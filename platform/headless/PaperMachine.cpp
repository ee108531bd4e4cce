#include "platform/headless/PaperMachine.h"

#include "platform/platform.h"

namespace {

struct Machine {
  std::string Folder;
  std::uint64_t Seed = 1;
  int OpenCode = 33;
  bool blnOtherInstance = false;
  std::vector<std::string> Opened, HelpShown;
};

Machine machine;

}  // namespace

namespace platform {

std::uint64_t RandomSeed() { return machine.Seed++; }
std::string DataFolder() { return machine.Folder; }
std::string HelpFolder() { return machine.Folder; }

int OpenAddress(const std::string& address) {
  machine.Opened.push_back(address);
  return machine.OpenCode;
}

void ShowHelp(const std::string& file, int context) {
  machine.HelpShown.push_back(file + "#" + std::to_string(context));
}

bool ActivateOtherInstance() { return machine.blnOtherInstance; }

}  // namespace platform

namespace headless {

void ResetMachine(const std::string& folder) {
  machine = {};
  machine.Folder = folder;
}
void Seed(std::uint64_t seed) { machine.Seed = seed; }
std::vector<std::string>& Opened() { return machine.Opened; }
void OpenAddressReturns(int code) { machine.OpenCode = code; }
std::vector<std::string>& HelpShown() { return machine.HelpShown; }
void OtherInstanceRuns(bool blnRuns) { machine.blnOtherInstance = blnRuns; }

}  // namespace headless
