// Files by the system's own calls, as in SafeFile.cpp; here for Windows.
#include "desk/project/SafeFile.h"

#include <algorithm>
#include <random>
#include <utility>

#include <windows.h>
#undef ReplaceFile

#include "desk/project/Failure.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;

// The system's reason, in the words of the other systems.
Message Reason(DWORD error)
{
    switch (error) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH: return Phrase("Desk", "No such file or directory");
    case ERROR_DIRECTORY: return Phrase("Desk", "Not a directory");
    case ERROR_ACCESS_DENIED: return Phrase("Desk", "Permission denied");
    case ERROR_WRITE_PROTECT: return Phrase("Desk", "Read-only file system");
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL: return Phrase("Desk", "No space left on device");
    case ERROR_FILE_TOO_LARGE: return Phrase("Desk", "File too large");
    case ERROR_FILENAME_EXCED_RANGE: return Phrase("Desk", "File name too long");
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: return Phrase("Desk", "Device or resource busy");
    case ERROR_CRC:
    case ERROR_IO_DEVICE: return Phrase("Desk", "Input/output error");
    default: return "Windows error " + std::to_string(error);
    }
}

// The phrase has places for the file and the reason.
[[noreturn]] void FailWith(const fs::path& file, const Phrase& phrase, DWORD error)
{
    throw Failure(phrase, file.string(), Reason(error));
}

[[noreturn]] void FailSaving(const fs::path& file, DWORD error)
{
    FailWith(file, Phrase("Desk", "%1: cannot be saved: %2"), error);
}

constexpr DWORD ShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

class OpenedFile {
public:
    OpenedFile(const fs::path& file, DWORD access, DWORD share, DWORD disposition,
               DWORD flags = FILE_ATTRIBUTE_NORMAL)
        : m_handle(CreateFileW(file.c_str(), access, share, nullptr, disposition, flags, nullptr))
    {
    }
    OpenedFile(OpenedFile&& other) noexcept : m_handle(std::exchange(other.m_handle, Invalid())) {}
    OpenedFile& operator=(OpenedFile&&) = delete;
    ~OpenedFile() { Close(); }

    void Close()
    {
        if (IsOpen()) {
            CloseHandle(std::exchange(m_handle, Invalid()));
        }
    }

    [[nodiscard]] bool IsOpen() const { return m_handle != Invalid(); }
    [[nodiscard]] HANDLE Handle() const { return m_handle; }

private:
    static HANDLE Invalid() { return INVALID_HANDLE_VALUE; }

    HANDLE m_handle;
};

fs::path FolderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

// The file that a name stands for in the end, and whether it is there. What is no ordinary file must not be
// replaced.
std::pair<fs::path, bool> OldFile(const fs::path& file)
{
    const DWORD attributes = GetFileAttributesW(file.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        if (const DWORD error = GetLastError(); error != ERROR_FILE_NOT_FOUND) {
            FailSaving(file, error);
        }
        return {file, false};
    }
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        throw Failure(Phrase("Desk", "%1: cannot be saved: %2"), file.string(),
                      Phrase("Desk", "a folder stands there"));
    }
    if ((attributes & FILE_ATTRIBUTE_READONLY) != 0) {
        FailWith(file, Phrase("Desk", "%1: cannot be saved, it is write-protected: %2"),
                 ERROR_ACCESS_DENIED);
    }
    const OpenedFile old(file, FILE_READ_ATTRIBUTES, ShareAll, OPEN_EXISTING);
    if (!old.IsOpen()) {
        FailSaving(file, GetLastError());
    }
    if (GetFileType(old.Handle()) != FILE_TYPE_DISK) {
        throw Failure(Phrase("Desk", "%1: cannot be saved: %2"), file.string(),
                      Phrase("Desk", "it is no ordinary file"));
    }
    if ((attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
        return {file, true};
    }
    std::wstring target(32768, L'\0');  // the longest name that the system has
    target.resize(
        GetFinalPathNameByHandleW(old.Handle(), target.data(), static_cast<DWORD>(target.size()), 0));
    return {target.empty() ? file : fs::path(target), true};
}

constexpr std::string_view NewFilePrefix = ".beamdesk-";  // before a number

// A file of our own beside the target, removed again unless it took the target's place. It is open for as
// long as somebody works on it, which tells it from what a killed save left behind.
class NewFile {
public:
    explicit NewFile(const fs::path& target) : m_target(target), m_file(Create()) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (!m_name.empty()) {
            DeleteFileW(m_name.c_str());
        }
    }

    void Write(std::string_view text)
    {
        constexpr std::size_t AtOnce = std::size_t{1} << 24U;
        while (!text.empty()) {
            DWORD count = 0;
            Check(WriteFile(m_file.Handle(), text.data(), static_cast<DWORD>(std::min(text.size(), AtOnce)),
                            &count, nullptr));
            text.remove_prefix(count);
        }
    }

    // All of it is on the disk.
    void Finish() { Check(FlushFileBuffers(m_file.Handle())); }

    // An old file's owner, rights and attributes stay. The system replaces by a file that nobody has open,
    // and Wine where the whole path is told.
    void TakePlace(bool hasOld)
    {
        m_file.Close();
        const fs::path place = fs::absolute(m_target);
        Check(hasOld ? ReplaceFileW(place.c_str(), m_name.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS,
                                    nullptr, nullptr)
                     : MoveFileExW(m_name.c_str(), place.c_str(), MOVEFILE_WRITE_THROUGH));
        m_name.clear();
    }

private:
    void Check(BOOL isDone) const
    {
        if (isDone == FALSE) {
            FailSaving(m_target, GetLastError());
        }
    }

    OpenedFile Create()
    {
        constexpr int Attempts = 100;
        std::random_device random;
        for (int i = 0; i < Attempts; ++i) {
            m_name = m_target.parent_path() / (std::string(NewFilePrefix) + std::to_string(random()));
            OpenedFile made(m_name, GENERIC_WRITE, ShareAll, CREATE_NEW);
            if (made.IsOpen()) {
                return made;
            }
            if (GetLastError() != ERROR_FILE_EXISTS) {
                break;
            }
        }
        m_name.clear();
        FailSaving(m_target, GetLastError());
    }

    fs::path m_target;
    fs::path m_name;
    OpenedFile m_file;
};

// Takes away what killed saves left in the folder. What somebody has open stays.
void RemoveLeftovers(const fs::path& folder)
{
    const auto isOurs = [](const std::string& name) {
        return name.starts_with(NewFilePrefix) && name.size() > NewFilePrefix.size() &&
               name.find_first_not_of("0123456789", NewFilePrefix.size()) == std::string::npos;
    };
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        if (isOurs(at->path().filename().string())) {
            // Alone, and gone when it is closed.
            const OpenedFile leftover(at->path(), DELETE, 0, OPEN_EXISTING, FILE_FLAG_DELETE_ON_CLOSE);
        }
    }
}

}  // namespace

std::string ReadWholeFile(const fs::path& file, std::size_t limit)
{
    std::error_code unknown;
    if (fs::is_directory(file, unknown)) {
        throw Failure(Phrase("Desk", "%1:1:1: a folder, not a project file"), file.string());
    }
    const OpenedFile opened(file, GENERIC_READ, ShareAll, OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN);
    if (!opened.IsOpen()) {
        FailWith(file, Phrase("Desk", "%1: cannot be opened: %2"), GetLastError());
    }
    std::string text;
    std::string block(65536, '\0');
    for (;;) {
        DWORD count = 0;
        if (ReadFile(opened.Handle(), block.data(), static_cast<DWORD>(block.size()), &count, nullptr) ==
                FALSE &&
            GetLastError() != ERROR_BROKEN_PIPE) {
            FailWith(file, Phrase("Desk", "%1: cannot be read: %2"), GetLastError());
        }
        if (count == 0) {
            return text;
        }
        text.append(block, 0, count);
        if (text.size() > limit) {
            throw Failure(Phrase("Desk", "%1:1:1: longer than %2 MiB, no project is that long"),
                          file.string(), std::to_string(limit >> 20U));
        }
    }
}

void KeepCopy(const fs::path& file, const fs::path& copy)
{
    if (CreateHardLinkW(copy.c_str(), file.c_str(), nullptr) != FALSE ||
        GetLastError() == ERROR_ALREADY_EXISTS) {
        return;
    }
    ReplaceFile(copy, ReadWholeFile(file, std::size_t{1} << 40U));  // a file system without second names
}

void ReplaceFile(const fs::path& file, std::string_view text) { ReplaceFile(file, std::span(&text, 1)); }

void ReplaceFile(const fs::path& file, std::span<const std::string_view> pieces)
{
    const auto [target, hasOld] = OldFile(file);
    NewFile replacement(target);
    for (const std::string_view piece : pieces) {
        replacement.Write(piece);
    }
    replacement.Finish();
    replacement.TakePlace(hasOld);
    RemoveLeftovers(FolderOf(target));
}

}  // namespace Desk
