#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Files that are there whole or not at all, whatever fails on the way: each step is seen to, until
/// the bytes lie on the disk. All throw PlatformError with the system's reason.
namespace mevracard {

/// Throws the reason of the system call just made unless it succeeded.
void demand(bool success);

/// Everything in a file. Something that is no plain file would be waited for, and is refused.
[[nodiscard]] std::string readFile(const std::filesystem::path& path);

/// Makes a file that must not exist yet. On failure part of it may be there.
void makeFile(const std::filesystem::path& path, std::string_view text);

/// What `replaceFile` makes beside a file before it takes its place; a program that was killed may
/// leave it behind.
[[nodiscard]] std::filesystem::path beside(const std::filesystem::path& path);

/// Replaces a plain file, or makes it, with the old one's permissions. On failure the old one is
/// untouched and nothing is left beside it. Two at once must not replace the same file.
void replaceFile(const std::filesystem::path& path, std::string_view text);

}  // namespace mevracard
