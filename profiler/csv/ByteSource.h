// Where the bytes of a CSV file come from.
#pragma once

#include "csv/Message.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>

namespace csv {

/// Bytes read from front to end, more than once if need be.
class ByteSource {
public:
    virtual ~ByteSource() = default;

    /// Reads at most `size` bytes into `to` and returns how many; 0 at the end, nothing when reading failed.
    virtual std::optional<std::size_t> Read(char* to, std::size_t size) = 0;

    /// Goes back to the first byte; false when that failed.
    virtual bool Rewind() = 0;

    /// All bytes, for telling progress; 0 when not known.
    virtual std::uint64_t Size() const = 0;
};

/// A file on disk, read through a handle that is closed by the destructor. While it is open, other programs may go on
/// using the file.
class FileSource : public ByteSource {
public:
    struct OpenResult {
        std::unique_ptr<FileSource> source; ///< null when the file could not be opened
        std::optional<Message> problem;     ///< then says why
    };

    static OpenResult Open(const std::filesystem::path& path);

    std::optional<std::size_t> Read(char* to, std::size_t size) override;
    bool Rewind() override;
    std::uint64_t Size() const override { return m_size; }

private:
    struct Closer {
        void operator()(std::FILE* file) const { std::fclose(file); }
    };

    FileSource(std::FILE* file, std::uint64_t size) : m_file(file), m_size(size) {}

    std::unique_ptr<std::FILE, Closer> m_file;
    std::uint64_t m_size;
};

/// Bytes that are in memory already.
class MemorySource : public ByteSource {
public:
    explicit MemorySource(std::string bytes) : m_bytes(std::move(bytes)) {}

    std::optional<std::size_t> Read(char* to, std::size_t size) override;
    bool Rewind() override;
    std::uint64_t Size() const override { return m_bytes.size(); }

private:
    std::string m_bytes;
    std::size_t m_next = 0;
};

/// A path as UTF-8, for sentences.
std::string PathText(const std::filesystem::path& path);

} // namespace csv
