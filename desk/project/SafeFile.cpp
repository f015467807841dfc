// Files by the system's own calls, for the sake of fsync and of errors that name their cause.
#include "desk/project/SafeFile.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <random>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "desk/project/Failure.h"

namespace Desk {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void FailWith(const fs::path& file, const std::string& what, int error)
{
    throw Failure(file.string() + ": " + what + ": " + std::strerror(error));
}

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
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
            FailWith(file, "cannot be saved", error ? error.value() : ELOOP);
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
        FailWith(target, "cannot be saved", errno);
    }
    if (!S_ISREG(old.st_mode)) {
        throw Failure(target.string() + ": cannot be saved: " +
                      (S_ISDIR(old.st_mode) ? "a folder stands there" : "it is no ordinary file"));
    }
    if (faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
        FailWith(target, "cannot be saved, it is write-protected", errno);
    }
    return old;
}

// A file of our own beside the target, removed again unless it took the target's place.
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
        Check(static_cast<int>(Again([this] { return fsync(m_descriptor.Number()); })));
        if (const int error = m_descriptor.Close()) {
            FailWith(m_target, "cannot be saved", error);
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
            FailWith(m_target, "cannot be saved", errno);
        }
    }

    // A name that is free; what killed processes left behind is in nobody's way.
    Descriptor Create()
    {
        constexpr int Attempts = 100;
        std::random_device random;
        for (int i = 0; i < Attempts; ++i) {
            m_name = m_target.parent_path() / (".beamdesk-" + std::to_string(random()));
            const int number = open(m_name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (number >= 0) {
                return Descriptor(number);
            }
            if (errno != EEXIST) {
                break;
            }
        }
        m_name.clear();
        FailWith(m_target, "cannot be saved", errno);
    }

    fs::path m_target;
    fs::path m_name;
    Descriptor m_descriptor;
};

void SyncFolder(const fs::path& target)
{
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    const Descriptor descriptor(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that may not be read, or a file system that syncs no folders, is no reason to complain.
    if (descriptor.IsOpen() && fsync(descriptor.Number()) != 0 && errno == EIO) {
        FailWith(target, "saved, but the folder could not be synced", errno);
    }
}

}  // namespace

std::string ReadWholeFile(const fs::path& file)
{
    const Descriptor descriptor(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        FailWith(file, "cannot be opened", errno);
    }
    std::string text;
    for (;;) {
        std::array<char, 65536> block{};
        const ssize_t count = Again([&] { return read(descriptor.Number(), block.data(), block.size()); });
        if (count == 0) {
            return text;
        }
        if (count < 0 && errno == EISDIR) {
            throw Failure(file.string() + ":1:1: a folder, not a project file");
        }
        if (count < 0) {
            FailWith(file, "cannot be read", errno);
        }
        text.append(block.data(), static_cast<std::size_t>(count));
        if (text.size() > MaxFileSize) {
            throw Failure(file.string() + ":1:1: longer than " + std::to_string(MaxFileSize >> 20U) +
                          " MiB, no project is that long");
        }
    }
}

void ReplaceFile(const fs::path& file, std::string_view text)
{
    const fs::path target = FollowLinks(file);
    const std::optional<struct stat> old = OldFile(target);
    NewFile replacement(target);
    if (old) {
        replacement.LookLike(*old);
    }
    replacement.Write(text);
    replacement.TakePlace();
    SyncFolder(target);
}

}  // namespace Desk
