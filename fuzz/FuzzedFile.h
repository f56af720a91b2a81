// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

namespace deckforge {

/// Bytes from the fuzzer as a file in memory, for functions that take a path.
class FuzzedFile {
public:
    FuzzedFile(const std::uint8_t* bytes, std::size_t size) : m_handle(::memfd_create("fuzzed", MFD_CLOEXEC))
    {
        if (m_handle < 0 || ::write(m_handle, bytes, size) != static_cast<ssize_t>(size))
            std::abort();
    }
    ~FuzzedFile() { ::close(m_handle); }
    FuzzedFile(const FuzzedFile&) = delete;
    FuzzedFile& operator=(const FuzzedFile&) = delete;

    [[nodiscard]] QString Path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_handle); }

private:
    int m_handle;
};

} // namespace deckforge
