#include "platform/Procedure.h"

#include <exception>
#include <string>
#include <string_view>

#include "platform/Texts.h"
#include "platform/platform.h"

namespace {

constexpr std::size_t intLongestLabel = 80;

// The innermost procedure that a fault has unwound. Noted while the stack goes, so it takes no
// memory of its own.
bool blnNoted = false;
char strLabel[intLongestLabel + 1] = "";
int intLine = 0;

}  // namespace

Procedure::Procedure(const char* label) : label_(label), exceptions_(std::uncaught_exceptions()) {}

Procedure::~Procedure() {
  if (blnNoted || std::uncaught_exceptions() <= exceptions_) {
    return;
  }
  blnNoted = true;
  strLabel[std::string_view(label_).copy(strLabel, intLongestLabel)] = '\0';
  intLine = 10 * step_;
}

void prcForgetFault() { blnNoted = false; }

void prcTellFault(const Fault& fault) {
  platform::MsgBox("Serious Error Occurred - Line " + std::to_string(intLine) + " Error - " +
                       std::to_string(fault.Number) + "-" + fault.Description + strLineBreak + "'" +
                       strLabel + "'" + strLineBreak + "PLEASE RECORD ERROR MESSAGE",
                   platform::Icon::Stop, "Velmora");
  platform::End();
}
