#pragma once

#include <string>

/// Where the program's pages lie on the web: a host under a reserved example domain, so that
/// nothing is ever fetched.
extern const char* const strWebSite;

/// Opens an address in the system's browser; a failure is told in one box titled varTitle.
void DisplayURL(const std::string& strURL, const std::string& varTitle);
