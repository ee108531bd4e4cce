#pragma once

#include <span>
#include <string>
#include <string_view>

// Access to a profile text, "[section]" lines followed by "key=value" lines. Every call goes to the
// file; nothing is kept between calls. Names match without regard to case.

/// The value of a key with the blanks around it removed, or fallback where the section or key is
/// missing. Where no file can be read, missing is read as if it were the file's contents.
std::string fncReadProfile(const std::string& path, std::string_view section, std::string_view key,
                           std::string_view fallback, std::string_view missing = {});

struct ProfileKey {
  std::string Section, Key, Value;
};

/// Writes keys in their order, creating file, section or key as needed. All other bytes of the file
/// stay as they are: comments, unknown lines, order, line ends. The file is replaced once, as a
/// whole or not at all. Returns whether it was. A new file begins with the contents of missing.
bool fncWriteProfile(const std::string& path, std::span<const ProfileKey> keys,
                     std::string_view missing = {});

/// Makes a new profile of these contents, as a whole or not at all. A file that stands is left
/// alone. Returns whether there is one now that can be read.
bool fncCreateProfile(const std::string& path, const std::string& contents);
