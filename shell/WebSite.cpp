#include "shell/WebSite.h"

#include <algorithm>
#include <array>

#include "platform/Procedure.h"
#include "platform/platform.h"

const char* const strWebSite = "https://velmora.example/";

namespace {

struct BrowserFailure {
  int Code;
  const char* Message;
};

constexpr std::array browserFailures{
    BrowserFailure{0, "Not enough memory to load web browser"},
    BrowserFailure{2, "Unable to locate URL shortcut"},
    BrowserFailure{31, "Unable to locate web browser."},
};

/// Codes above this are success.
constexpr int intLastFailure = 32;

}  // namespace

void DisplayURL(const std::string& strURL, const std::string& varTitle) {
  const Procedure running("DisplayURL");
  const int code = platform::OpenAddress(strURL);
  running.Step(2);
  if (code > intLastFailure) {
    return;
  }
  const auto* const known = std::ranges::find(browserFailures, code, &BrowserFailure::Code);
  platform::MsgBox(
      known != browserFailures.end()
          ? known->Message
          : "Error attempting to start web browser.  Return Code: " + std::to_string(code),
      platform::Icon::None, varTitle);
}
