#include "Platform/Files.h"

#include "Platform/SystemPath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

namespace Platform::Files {

namespace fs = std::filesystem;

namespace {

constexpr mode_t NEW_FILE_MODE = 0666;

class Descriptor {
public:
    // Opens without waiting for the other end of a pipe.
    Descriptor(const fs::path& path, int flags, mode_t mode = 0)
        : m_number(::open(path.c_str(), flags | O_CLOEXEC | O_NONBLOCK, mode)) {}
    ~Descriptor() { close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

    bool isPlainFile() const {
        struct stat state = {};
        return isOpen() && ::fstat(m_number, &state) == 0 && S_ISREG(state.st_mode);
    }

    bool writeAll(std::string_view content) const {
        while (!content.empty()) {
            const ssize_t written = ::write(m_number, content.data(), content.size());
            if (written < 0 && errno == EINTR)
                continue;
            if (written <= 0)
                return false;
            content.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    bool close() {
        const bool done = !isOpen() || ::close(m_number) == 0;
        m_number = -1;
        return done;
    }

private:
    int m_number;
};

// A unique path beside the target. Its name is short, whatever the target's, because names have a length limit.
fs::path temporaryPath(const fs::path& target) {
    static std::atomic<unsigned> counter{0};
    for (;;) {
        const std::string name = "." + std::to_string(::getpid()) + "-" + std::to_string(counter.fetch_add(1)) + ".tmp";
        fs::path path = target.parent_path() / name;
        std::error_code error;
        if (fs::symlink_status(path, error).type() != fs::file_type::regular)
            return path;
    }
}

// Only after this does the folder's entry survive a crash. Where a system can't flush folders, the file stays anyway.
void flushFolder(const fs::path& folder) {
    const Descriptor descriptor(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY);
    if (descriptor.isOpen())
        ::fsync(descriptor.get());
}

bool writeNew(const fs::path& path, std::string_view content, const struct stat* old) {
    Descriptor file(path, O_WRONLY | O_CREAT | O_EXCL, NEW_FILE_MODE);
    if (!file.isOpen())
        return false;
    const bool modeKept = !old || ::fchmod(file.get(), old->st_mode & 07777) == 0;
    return modeKept && file.writeAll(content) && ::fsync(file.get()) == 0 && file.close();
}

}

std::optional<std::string> read(const std::string& path, std::uintmax_t maxSize) {
    const auto source = systemPath(path);
    if (!source)
        return std::nullopt;
    const Descriptor file(*source, O_RDONLY);
    if (!file.isPlainFile())
        return std::nullopt;
    std::string content;
    char block[1 << 16];
    for (;;) {
        const ssize_t count = ::read(file.get(), block, sizeof(block));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            return content;
        content.append(block, static_cast<std::size_t>(count));
        if (content.size() > maxSize)
            return std::nullopt;
    }
}

bool replace(const std::string& path, std::string_view content) {
    const auto named = systemPath(path);
    if (!named)
        return false;
    // A link stays a link; the file it points to is replaced.
    std::error_code notThere;
    std::error_code error;
    const fs::path target = fs::is_symlink(*named, notThere) ? fs::weakly_canonical(*named, error) : *named;
    struct stat old = {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (error || (exists && (!S_ISREG(old.st_mode) || ::access(target.c_str(), W_OK) != 0)))
        return false;
    const fs::path temporary = temporaryPath(target);
    if (!writeNew(temporary, content, exists ? &old : nullptr) || std::rename(temporary.c_str(), target.c_str()) != 0) {
        ::unlink(temporary.c_str());
        return false;
    }
    flushFolder(target.parent_path());
    return true;
}

bool append(const std::string& path, std::string_view content) {
    const auto target = systemPath(path);
    if (!target)
        return false;
    Descriptor file(*target, O_WRONLY | O_APPEND | O_CREAT, NEW_FILE_MODE);
    return file.isPlainFile() && file.writeAll(content) && file.close();
}

bool remove(const std::string& path) {
    const auto target = systemPath(path);
    return target && ::unlink(target->c_str()) == 0;
}

bool move(const std::string& from, const std::string& to) {
    const auto source = systemPath(from);
    const auto target = systemPath(to);
    struct stat state = {};
    if (!source || !target || ::stat(source->c_str(), &state) != 0 || !S_ISREG(state.st_mode))
        return false;
    if (::renameat2(AT_FDCWD, source->c_str(), AT_FDCWD, target->c_str(), RENAME_NOREPLACE) == 0)
        return true;
    // Not every file system can do that in one step, and none can across two.
    if (errno != EXDEV && errno != EINVAL && errno != ENOSYS)
        return false;
    std::error_code error;
    if (!fs::copy_file(*source, *target, fs::copy_options::none, error))
        return false;
    return ::unlink(source->c_str()) == 0;
}

std::string withSystemLineEnds(std::string_view text) {
    return std::string(text);
}

}
