#include "platform/Procedure.h"

#include <string>

#include "platform/Texts.h"
#include "platform/platform.h"

namespace {
Procedure* prcInnermost = nullptr;
}

Procedure::Procedure() : Outer(prcInnermost) { prcInnermost = this; }

Procedure::~Procedure() { prcInnermost = Outer; }

void At(int line) {
  if (prcInnermost != nullptr) {
    prcInnermost->Line = line;
  }
}

void prcTellFault(const char* label, int line, const Fault& fault) {
  platform::MsgBox("Serious Error Occurred - Line " + std::to_string(line) + " Error - " +
                       std::to_string(fault.Number) + "-" + fault.Description + strLineBreak + "'" +
                       label + "'" + strLineBreak + "PLEASE RECORD ERROR MESSAGE",
                   platform::Icon::Stop, "Velmora");
  platform::End();
}
