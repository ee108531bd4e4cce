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

struct FirstSetting {
  std::string Section;
  const char* Key;
  int Value;
};

/// Without these a first run would open a table of no size, seats that have no money and lists that
/// lie over the menus. They also stand in for a file that has gone or that cannot be made. Twips,
/// money per chip, money.
std::string fncFirstSettings() {
  const FirstSetting rows[] = {
      {secBaccTable, keyHeight, 5400},    {secBaccTable, keyWidth, 10770},
      {secCardsDealt, keyTop, 1800},      {secCardsDealt, keyLeft, 18300},
      {secCardsDealtCount, keyTop, 1800}, {secCardsDealtCount, keyLeft, 300},
      {secStatistics, keyTop, 3000},      {secStatistics, keyLeft, 4200},
      {secMisc, keyUnitValue, 10},        {fncSeatSection(0), keyStake, 1000},
      {fncSeatSection(1), keyStake, 1000}};
  std::string text;
  std::string section;
  for (const FirstSetting& row : rows) {
    if (row.Section != section) {
      section = row.Section;
      text += "[" + section + "]" + strLineBreak;
    }
    text += std::string(row.Key) + "=" + fncNumberText(row.Value) + strLineBreak;
  }
  return text;
}

const std::string strFirstSettings = fncFirstSettings();

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
