#pragma once

#include <functional>
#include <string>

#include "shell/SettingsKeys.h"

// The settings file, key by key.

/// Full path of the settings file; set once, before the first read.
extern std::string strIniFile;
extern std::string strHelpFile;  ///< Full path of the help file.

/// The value of a key in the settings file, at most 99 characters; "No" where there is none. Where
/// there is no file to be read, the values of a first run. What this run has written holds, whether
/// the file has taken it or not.
std::string fncGetPrivateProfileString(const std::string& strSection, const std::string& strKey);

/// Writes a key to the settings file at once. A file that has gone is made anew, with the values of
/// a first run. A write that fails leaves the file as it was and is not told; it holds for this
/// run, and reaches the file with the first write that succeeds.
void prcWritePrivateProfileString(const std::string& strSection, const std::string& strKey,
                                  const std::string& strValue);

/// Runs work, which serves no events, and then writes all that it wrote in one replacement of the
/// file, also when a fault ends it: whoever finds the file after a power cut finds all of it or
/// nothing. Not to be nested.
void prcWriteTogether(const std::function<void()>& work);

/// The numeric value of a key; 0 where it is missing or no number.
double fncGetSetting(const std::string& strSection, const std::string& strKey);

/// Writes a number in the file's form, with its leading blank.
void prcWriteSetting(const std::string& strSection, const std::string& strKey, double number);

/// A yes/no flag: only the exact text "False" is off, so a missing key is on.
bool fncSwitchedOn(const std::string& strSection, const std::string& strKey);

/// Writes a yes/no flag as "True" or "False".
void prcWriteSwitch(const std::string& strSection, const std::string& strKey, bool blnOn);

/// Full path of the help file.
std::string fncHelpFilePath();

/// Fixes strIniFile and strHelpFile, and sets up the least that a first run needs where there is no
/// settings file. Tells the player, once, where no file can be read or made.
void prcFixPaths();
