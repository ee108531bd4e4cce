#include "platform/platform.h"

namespace platform {
void ShowHelp(const std::string& file, int /*context*/) { MsgBox("no help yet " + file); }
}  // namespace platform
