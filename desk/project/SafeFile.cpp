// Files by the system's own calls, for the sake of fsync and of errors that name their cause.
#include "desk/project/SafeFile.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <random>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "desk/project/Failure.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;

// The system's reason; rare ones are told in its own words.
Message Reason(int error)
{
    switch (error) {
    case ENOENT: return Phrase("Desk", "No such file or directory");
    case ENOTDIR: return Phrase("Desk", "Not a directory");
    case EACCES: return Phrase("Desk", "Permission denied");
    case EPERM: return Phrase("Desk", "Operation not permitted");
    case EROFS: return Phrase("Desk", "Read-only file system");
    case ENOSPC: return Phrase("Desk", "No space left on device");
    case EDQUOT: return Phrase("Desk", "Disk quota exceeded");
    case EFBIG: return Phrase("Desk", "File too large");
    case ELOOP: return Phrase("Desk", "Too many levels of symbolic links");
    case ENAMETOOLONG: return Phrase("Desk", "File name too long");
    case EBUSY: return Phrase("Desk", "Device or resource busy");
    case EIO: return Phrase("Desk", "Input/output error");
    default: return std::string(std::strerror(error));
    }
}

// The phrase has places for the file and the reason.
[[noreturn]] void FailWith(const fs::path& file, const Phrase& phrase, int error)
{
    throw Failure(phrase, file.string(), Reason(error));
}

[[noreturn]] void FailSaving(const fs::path& file, int error)
{
    FailWith(file, Phrase("Desk", "%1: cannot be saved: %2"), error);
}

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { Close(); }

    [[nodiscard]] bool IsOpen() const { return m_number >= 0; }
    [[nodiscard]] int Number() const { return m_number; }
    // The error, 0 for none.
    int Close()
    {
        const int number = std::exchange(m_number, -1);
        return number >= 0 && close(number) != 0 ? errno : 0;
    }

private:
    int m_number;
};

bool Lock(const Descriptor& file, int how) { return flock(file.Number(), how) == 0; }

// False when somebody has removed the file since it was opened.
bool IsNamed(const Descriptor& file)
{
    struct stat now {};
    return fstat(file.Number(), &now) == 0 && now.st_nlink > 0;
}

fs::path FolderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

// Read or write as often as a signal interrupts.
template <class Call>
ssize_t Again(Call call)
{
    ssize_t result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

// The file that a name stands for in the end; a link may lead to a file that is still to be made.
fs::path FollowLinks(const fs::path& file)
{
    constexpr int MaxLinks = 40;  // as the system itself counts
    fs::path target = file;
    std::error_code error;
    for (int i = 0; fs::is_symlink(fs::symlink_status(target, error)); ++i) {
        const fs::path next = fs::read_symlink(target, error);
        if (error || i == MaxLinks) {
            FailSaving(file, error ? error.value() : ELOOP);
        }
        target = target.parent_path() / next;  // an absolute link replaces the folder
    }
    return target;
}

// The old file, nothing when there is none. What is no ordinary file must not be renamed over.
std::optional<struct stat> OldFile(const fs::path& target)
{
    struct stat old {};
    if (stat(target.c_str(), &old) != 0) {
        if (errno == ENOENT) {
            return std::nullopt;
        }
        FailSaving(target, errno);
    }
    if (!S_ISREG(old.st_mode)) {
        throw Failure(Phrase("Desk", "%1: cannot be saved: %2"), target.string(),
                      S_ISDIR(old.st_mode) ? Phrase("Desk", "a folder stands there")
                                           : Phrase("Desk", "it is no ordinary file"));
    }
    if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        FailWith(target, Phrase("Desk", "%1: cannot be saved, it is write-protected: %2"), errno);
    }
    return old;
}

constexpr std::string_view NewFilePrefix = ".beamdesk-";  // before a number

// A file of our own beside the target, removed again unless it took the target's place. It is locked for as
// long as somebody works on it, which tells it from what a killed save left behind.
class NewFile {
public:
    explicit NewFile(const fs::path& target) : m_target(target), m_descriptor(Create()) {}
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;
    ~NewFile()
    {
        if (!m_name.empty()) {
            unlink(m_name.c_str());
        }
    }

    void LookLike(const struct stat& old)
    {
        // The owner is kept where that is allowed; it goes first, since it can clear mode bits.
        static_cast<void>(fchown(m_descriptor.Number(), old.st_uid, old.st_gid) == 0);
        Check(fchmod(m_descriptor.Number(), old.st_mode & 07777U));
    }

    void Write(std::string_view text)
    {
        while (!text.empty()) {
            const ssize_t count =
                Again([&] { return write(m_descriptor.Number(), text.data(), text.size()); });
            Check(count < 0 ? -1 : 0);
            text.remove_prefix(static_cast<std::size_t>(count));
        }
    }

    // All of it is on the disk.
    void Finish()
    {
        Check(static_cast<int>(Again([this] { return fsync(m_descriptor.Number()); })));
        m_lock = Descriptor(fcntl(m_descriptor.Number(), F_DUPFD_CLOEXEC, 0));
        if (const int error = m_descriptor.Close()) {
            FailSaving(m_target, error);
        }
    }

    void TakePlace()
    {
        Check(rename(m_name.c_str(), m_target.c_str()));
        m_name.clear();
    }

private:
    void Check(int result) const
    {
        if (result != 0) {
            FailSaving(m_target, errno);
        }
    }

    // A name that is free, locked before anybody could take it for a leftover.
    Descriptor Create()
    {
        constexpr int Attempts = 100;
        std::random_device random;
        for (int i = 0; i < Attempts; ++i) {
            m_name = m_target.parent_path() / (std::string(NewFilePrefix) + std::to_string(random()));
            Descriptor made(open(m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
            if (!made.IsOpen() && errno != EEXIST) {
                break;
            }
            if (made.IsOpen() && (!Lock(made, LOCK_EX) || IsNamed(made))) {
                return made;
            }
        }
        m_name.clear();
        FailSaving(m_target, errno);
    }

    fs::path m_target;
    fs::path m_name;
    Descriptor m_descriptor;
    Descriptor m_lock{-1};  // shares the lock of the descriptor, until the new file has its place
};

// Takes away what killed saves left in the folder. What cannot be locked or removed stays.
void RemoveLeftovers(const fs::path& folder)
{
    const auto isOurs = [](const std::string& name) {
        return name.starts_with(NewFilePrefix) && name.size() > NewFilePrefix.size() &&
               name.find_first_not_of("0123456789", NewFilePrefix.size()) == std::string::npos;
    };
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error)) {
        std::error_code unknown;
        if (!isOurs(at->path().filename().string()) ||
            at->symlink_status(unknown).type() != fs::file_type::regular) {
            continue;
        }
        const Descriptor leftover(open(at->path().c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
        if (leftover.IsOpen() && Lock(leftover, LOCK_EX | LOCK_NB)) {
            unlink(at->path().c_str());
        }
    }
}

void SyncFolder(const fs::path& target)
{
    const Descriptor descriptor(open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that may not be read, or a file system that syncs no folders, is no reason to complain.
    if (descriptor.IsOpen() && fsync(descriptor.Number()) != 0 && errno == EIO) {
        FailWith(target, Phrase("Desk", "%1: saved, but the folder could not be synced: %2"), errno);
    }
}

}  // namespace

std::string ReadWholeFile(const fs::path& file, std::size_t limit)
{
    const Descriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        FailWith(file, Phrase("Desk", "%1: cannot be opened: %2"), errno);
    }
    std::string text;
    for (;;) {
        std::array<char, 65536> block{};
        const ssize_t count = Again([&] { return read(descriptor.Number(), block.data(), block.size()); });
        if (count == 0) {
            return text;
        }
        if (count < 0 && errno == EISDIR) {
            throw Failure(Phrase("Desk", "%1:1:1: a folder, not a project file"), file.string());
        }
        if (count < 0) {
            FailWith(file, Phrase("Desk", "%1: cannot be read: %2"), errno);
        }
        text.append(block.data(), static_cast<std::size_t>(count));
        if (text.size() > limit) {
            throw Failure(Phrase("Desk", "%1:1:1: longer than %2 MiB, no project is that long"),
                          file.string(), std::to_string(limit >> 20U));
        }
    }
}

void KeepCopy(const fs::path& file, const fs::path& copy)
{
    if (link(file.c_str(), copy.c_str()) == 0 || errno == EEXIST) {
        return;
    }
    ReplaceFile(copy, ReadWholeFile(file, std::size_t{1} << 40U));  // a file system without second names
}

void ReplaceFile(const fs::path& file, std::string_view text) { ReplaceFile(file, std::span(&text, 1)); }

void ReplaceFile(const fs::path& file, std::span<const std::string_view> pieces)
{
    const fs::path target = FollowLinks(file);
    const std::optional<struct stat> old = OldFile(target);
    NewFile replacement(target);
    if (old) {
        replacement.LookLike(*old);
    }
    for (const std::string_view piece : pieces) {
        replacement.Write(piece);
    }
    replacement.Finish();
    replacement.TakePlace();
    RemoveLeftovers(FolderOf(target));
    SyncFolder(target);
}

}  // namespace Desk
