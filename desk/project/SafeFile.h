// Files read whole and replaced whole.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

namespace Desk {

// A file by its name in UTF-8, whatever the system's own encoding; path::string() gives the name back so.
[[nodiscard]] inline std::filesystem::path PathOf(std::string_view name)
{
    return std::u8string(name.begin(), name.end());
}

// 64 MiB, about a hundred thousand beams: what is longer is taken for no project.
inline constexpr std::size_t MaxFileSize = std::size_t{64} << 20;

// Throws Failure when the file cannot be read, is a folder, or is longer than the limit in bytes.
[[nodiscard]] std::string ReadWholeFile(const std::filesystem::path& file, std::size_t limit = MaxFileSize);

// Keeps an ordinary file under a second name, unless that exists: the one that ReplaceFile takes the first
// name from. Throws Failure when it cannot.
void KeepCopy(const std::filesystem::path& file, const std::filesystem::path& copy);

// Writes a new file in the same folder, syncs it, renames it over the old one and syncs the folder. A
// symbolic link is followed and stays; the old file's mode stays, and its owner where the system lets us.
// Throws Failure with the old file as it was when anything fails before the rename, and then removes
// what it had written. A file ".beamdesk-NUMBER" that a killed save left in the folder is removed by the
// next one; another program's save in progress keeps its own.
void ReplaceFile(const std::filesystem::path& file, std::string_view text);
// The same for a text in pieces.
void ReplaceFile(const std::filesystem::path& file, std::span<const std::string_view> pieces);

}  // namespace Desk
