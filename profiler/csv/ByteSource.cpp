// Files and memory as byte sources, and the plain reasons why a file cannot be opened.
#include "csv/ByteSource.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

namespace csv {

namespace {

std::FILE* OpenForReading(const std::filesystem::path& path) {
#ifdef _WIN32
    return _wfopen(path.c_str(), L"rb");
#else
    return std::fopen(path.c_str(), "rb");
#endif
}

FileSource::OpenResult Refused(const char* literal, const std::filesystem::path& path) {
    return {nullptr, Message{Severity::Error, 0, literal, nullptr, 1, {PathText(path)}}};
}

} // namespace

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

FileSource::OpenResult FileSource::Open(const std::filesystem::path& path) {
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found)
        return Refused(Translatable("%1% cannot be found. Check its name and its folder."), path);
    if (std::filesystem::is_directory(status))
        return Refused(Translatable("%1% is a folder. Choose a CSV file in it."), path);

    errno = 0;
    std::FILE* file = OpenForReading(path);
    if (file == nullptr) {
        if (errno == EACCES || errno == EPERM) {
            return Refused(Translatable("%1% cannot be opened: you may not read it, or another program has locked it."),
                           path);
        }
        return Refused(Translatable("%1% cannot be opened. Check that it is an ordinary file and can be reached."),
                       path);
    }
    // Whole chunks are asked for, so a second buffer in between would only copy them once more.
    std::setvbuf(file, nullptr, _IONBF, 0);
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    return {std::unique_ptr<FileSource>(new FileSource(file, error ? 0 : size)), std::nullopt};
}

std::optional<std::size_t> FileSource::Read(char* to, std::size_t size) {
    const std::size_t count = std::fread(to, 1, size, m_file.get());
    if (count == 0 && std::ferror(m_file.get()) != 0)
        return std::nullopt;
    return count;
}

bool FileSource::Rewind() { return std::fseek(m_file.get(), 0, SEEK_SET) == 0; }

std::optional<std::size_t> MemorySource::Read(char* to, std::size_t size) {
    const std::size_t count = std::min(size, m_bytes.size() - m_next);
    std::memcpy(to, m_bytes.data() + m_next, count);
    m_next += count;
    return count;
}

bool MemorySource::Rewind() {
    m_next = 0;
    return true;
}

} // namespace csv
