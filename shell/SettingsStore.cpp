#include "shell/SettingsStore.h"

#include <algorithm>
#include <vector>

#include "platform/Procedure.h"
#include "platform/ProfileFile.h"
#include "platform/Texts.h"
#include "platform/platform.h"

std::string strIniFile;
std::string strHelpFile;

namespace {

constexpr std::size_t intLongestValue = 99;

/// Without these a first run would open a table of no size, seats that have no money and lists that
/// lie over the menus. They also stand in for a file that has gone or that cannot be made. Twips,
/// money per chip, money.
constexpr const char* strFirstSettings =
    "[frmBaccTable]\r\n"
    "Height= 5400\r\n"
    "Width= 10770\r\n"
    "[frmCardsDealt]\r\n"
    "Top= 1800\r\n"
    "Left= 18300\r\n"
    "[frmCardsDealtCount]\r\n"
    "Top= 1800\r\n"
    "Left= 300\r\n"
    "[frmStatistics]\r\n"
    "Top= 3000\r\n"
    "Left= 4200\r\n"
    "[Misc]\r\n"
    "UnitValue= 10\r\n"
    "[Player1Stats]\r\n"
    "Stake= 1000\r\n"
    "[Player2Stats]\r\n"
    "Stake= 1000\r\n";

/// The path of the file follows.
const std::string strNotKept =
    "Settings and statistics cannot be kept. This file can be neither read nor made:\r\n";

/// Writes that are not in the file: those that wait for the end of prcWriteTogether, and those that
/// it has refused, which hold for this run and are tried again with every later one.
std::vector<ProfileKey> keyWaiting;
bool blnTogether = false;

std::vector<ProfileKey>::iterator fncWaiting(const std::string& strSection,
                                             const std::string& strKey) {
  return std::ranges::find_if(keyWaiting, [&](const ProfileKey& key) {
    return fncEqualNoCase(key.Section, strSection) && fncEqualNoCase(key.Key, strKey);
  });
}

void prcWriteWaiting() {
  if (!keyWaiting.empty() && fncWriteProfile(strIniFile, keyWaiting, strFirstSettings)) {
    keyWaiting.clear();
  }
}

}  // namespace

void prcWriteTogether(const std::function<void()>& work) {
  blnTogether = true;
  const auto write = [] {
    blnTogether = false;
    prcWriteWaiting();
  };
  try {
    work();
  } catch (...) {
    write();
    throw;
  }
  write();
}

std::string fncGetPrivateProfileString(const std::string& strSection, const std::string& strKey) {
  const Procedure running("ZNEW fncGetPrivateProfileString");
  const auto waiting = fncWaiting(strSection, strKey);
  const std::string value =
      waiting != keyWaiting.end()
          ? waiting->Value.substr(waiting->Value.starts_with(' ') ? 1 : 0)  // A number's blank.
          : fncReadProfile(strIniFile, strSection, strKey, "No", strFirstSettings);
  return value.substr(0, intLongestValue);
}

void prcWritePrivateProfileString(const std::string& strSection, const std::string& strKey,
                                  const std::string& strValue) {
  if (const auto waiting = fncWaiting(strSection, strKey); waiting != keyWaiting.end()) {
    waiting->Value = strValue;
  } else {
    keyWaiting.push_back({strSection, strKey, strValue});
  }
  if (!blnTogether) {
    prcWriteWaiting();
  }
}

double fncGetSetting(const std::string& strSection, const std::string& strKey) {
  return fncVal(fncGetPrivateProfileString(strSection, strKey));
}

void prcWriteSetting(const std::string& strSection, const std::string& strKey, double number) {
  prcWritePrivateProfileString(strSection, strKey, fncNumberText(number));
}

bool fncSwitchedOn(const std::string& strSection, const std::string& strKey) {
  return fncGetPrivateProfileString(strSection, strKey) != "False";
}

void prcWriteSwitch(const std::string& strSection, const std::string& strKey, bool blnOn) {
  prcWritePrivateProfileString(strSection, strKey, blnOn ? "True" : "False");
}

std::string fncHelpFilePath() { return platform::HelpFolder() + "/VELMORA.HLP"; }

void prcFixPaths() {
  strIniFile = platform::DataFolder() + "/VELMORA.INI";
  strHelpFile = fncHelpFilePath();
  keyWaiting.clear();
  if (!fncCreateProfile(strIniFile, strFirstSettings)) {
    platform::MsgBox(strNotKept + strIniFile, platform::Icon::Exclamation);
  }
}
