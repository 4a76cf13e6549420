#pragma once

#include <string>
#include <string_view>

/// Files that are there whole or not at all, whatever fails on the way: each step is seen to, until
/// the bytes lie on the disk. All throw PlatformError with the system's reason.
namespace mevracard {

/// Throws the reason of the system call just made unless it succeeded.
void demand(bool success);

/// Makes a file that must not exist yet. On failure part of it may be there.
void makeFile(const std::string& path, std::string_view text);

/// What `replaceFile` makes beside a file before it takes its place; a program that was killed may
/// leave it behind.
[[nodiscard]] std::string beside(const std::string& path);

/// Replaces a file, or makes it, with the old one's permissions. On failure the old one is
/// untouched and nothing is left beside it. Two at once must not replace the same file.
void replaceFile(const std::string& path, std::string_view text);

}  // namespace mevracard
