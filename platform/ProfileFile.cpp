#include "platform/ProfileFile.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>

#include "platform/Texts.h"

namespace {

/// A line of the file: its text without the line end, and where it lies.
struct Line {
  std::string_view Text;
  std::size_t Start, End;  ///< End lies behind the line end.
};

/// Where a key stands: its whole line, or where it would be put.
struct Found {
  std::optional<Line> Key;
  std::optional<std::size_t> Behind;  ///< End of the section's last line that is not blank.
};

std::optional<std::string> fncContents(const std::string& path) {
  std::error_code failed;
  if (!std::filesystem::is_regular_file(path, failed)) {
    return std::nullopt;
  }
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    return std::nullopt;
  }
  std::string contents;
  const auto size = std::filesystem::file_size(path, failed);
  contents.resize(failed ? 0 : size);
  file.read(contents.data(), static_cast<std::streamsize>(contents.size()));
  contents.resize(static_cast<std::size_t>(file.gcount()));
  return contents;
}

Line fncLineAt(std::string_view contents, std::size_t start) {
  const std::size_t stop = contents.find_first_of("\r\n", start);
  if (stop == std::string_view::npos) {
    return {contents.substr(start), start, contents.size()};
  }
  const bool blnPair =
      contents[stop] == '\r' && stop + 1 < contents.size() && contents[stop + 1] == '\n';
  return {contents.substr(start, stop - start), start, stop + (blnPair ? 2 : 1)};
}

std::string_view fncBare(std::string_view text) {
  constexpr std::string_view blanks(" \t\0", 3);
  const std::size_t first = text.find_first_not_of(blanks);
  return first == std::string_view::npos
             ? std::string_view{}
             : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The name in a "[section]" line; a missing closing bracket is forgiven.
std::optional<std::string_view> fncSectionName(std::string_view text) {
  text = fncBare(text);
  if (!text.starts_with('[')) {
    return std::nullopt;
  }
  return fncBare(
      text.substr(1, text.find(']') == std::string_view::npos ? text.size() : text.find(']') - 1));
}

bool fncComment(std::string_view text) { return fncBare(text).starts_with(';'); }

Found fncFind(std::string_view contents, std::string_view section, std::string_view key) {
  Found found;
  bool blnInside = false;
  for (std::size_t at = 0; at < contents.size();) {
    const Line line = fncLineAt(contents, at);
    at = line.End;
    if (const auto name = fncSectionName(line.Text)) {
      if (blnInside) {
        return found;
      }
      blnInside = fncEqualNoCase(*name, section);
    }
    if (!blnInside) {
      continue;
    }
    const std::size_t equals = line.Text.find('=');
    if (equals != std::string_view::npos && !fncComment(line.Text) &&
        fncEqualNoCase(fncBare(line.Text.substr(0, equals)), key)) {
      found.Key = line;
      return found;
    }
    if (!fncBare(line.Text).empty()) {
      found.Behind = line.End;
    }
  }
  return found;
}

/// The line end that the file uses, by its first one.
std::string fncLineEnd(std::string_view contents) {
  const std::size_t stop = contents.find_first_of("\r\n");
  if (stop == std::string_view::npos || contents.substr(stop).starts_with("\r\n")) {
    return "\r\n";
  }
  return std::string(1, contents[stop]);
}

std::string fncWithKey(std::string contents, std::string_view section, std::string_view key,
                       std::string_view value) {
  const std::string end = fncLineEnd(contents);
  const std::string row = std::string(key) + "=" + std::string(value);
  const Found found = fncFind(contents, section, key);
  if (found.Key) {
    return contents.replace(found.Key->Start, found.Key->Text.size(), row);
  }
  const bool blnOpenLine = !contents.empty() && contents.back() != '\n' && contents.back() != '\r';
  if (!found.Behind) {
    return contents + (blnOpenLine ? end : "") + "[" + std::string(section) + "]" + end + row + end;
  }
  const bool blnAtOpenLine = *found.Behind == contents.size() && blnOpenLine;
  return contents.insert(*found.Behind, (blnAtOpenLine ? end : "") + row + end);
}

/// Writes beside the file and renames, so that whoever looks finds the old file or the new one.
bool fncReplace(const std::string& path, const std::string& contents) {
  const std::string beside = path + ".new";
  {
    std::FILE* file = std::fopen(beside.c_str(), "wb");
    if (file == nullptr) {
      return false;
    }
    const bool blnWritten =
        std::fwrite(contents.data(), 1, contents.size(), file) == contents.size();
    const bool blnClosed = std::fclose(file) == 0;
    if (!blnWritten || !blnClosed) {
      std::remove(beside.c_str());
      return false;
    }
  }
  std::error_code failed;
  std::filesystem::rename(beside, path, failed);
  if (failed) {
    std::remove(beside.c_str());
  }
  return !failed;
}

}  // namespace

std::string fncReadProfile(const std::string& path, std::string_view section, std::string_view key,
                           std::string_view fallback, std::string_view missing) {
  const std::string contents = fncContents(path).value_or(std::string(missing));
  const Found found = fncFind(contents, section, key);
  if (!found.Key) {
    return std::string(fallback);
  }
  return std::string(fncBare(found.Key->Text.substr(found.Key->Text.find('=') + 1)));
}

bool fncWriteProfile(const std::string& path, std::span<const ProfileKey> keys,
                     std::string_view missing) {
  std::error_code failed;
  const bool blnThere = std::filesystem::exists(path, failed);
  const std::optional<std::string> contents = fncContents(path);
  if (blnThere && !contents) {
    // It cannot be read as a whole: writing would lose what it holds.
    return false;
  }
  std::string written = contents.value_or(std::string(missing));
  for (const ProfileKey& row : keys) {
    written = fncWithKey(std::move(written), row.Section, row.Key, row.Value);
  }
  return fncReplace(path, written);
}

bool fncCreateProfile(const std::string& path, const std::string& contents) {
  std::error_code failed;
  if (std::filesystem::exists(path, failed)) {
    return fncContents(path).has_value();
  }
  return !failed && fncReplace(path, contents);
}
