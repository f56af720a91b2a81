// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RunTimeError.h"

#include <QByteArrayView>
#include <QString>
#include <fcntl.h>
#include <sys/stat.h>

namespace deckforge {

// POSIX file functions, for Files.h and SaveFile.h.

/// The error for an errno value at a path.
[[nodiscard]] RunTimeError SystemFailure(int error, const QString& path);

/// The path as the system takes it. Error 52 if it is empty or contains a NUL.
[[nodiscard]] QByteArray NameForSystem(const QString& path);

/// An open file descriptor. Failures are RunTimeErrors at its path. Opening a FIFO does not wait for its
/// other end; reads and writes block.
class FileHandle {
public:
    static constexpr mode_t DefaultMode = 0666; ///< the umask applies

    FileHandle(const QString& path, int flags, mode_t mode = DefaultMode);
    FileHandle(FileHandle&& other) noexcept;
    FileHandle& operator=(FileHandle&&) = delete;
    ~FileHandle();

    [[nodiscard]] int Descriptor() const { return m_descriptor; }
    [[nodiscard]] const QString& Path() const { return m_path; }
    [[nodiscard]] struct stat Status() const;

    /// Reads until the buffer is full or the file ends; returns the number of bytes read.
    qint64 Read(char* bytes, qint64 size);
    void Write(QByteArrayView bytes);
    /// Writes the rest of the other file in chunks.
    void WriteFrom(FileHandle& source);

    /// Waits until the data is on the disk.
    void Sync();
    /// Closes and reports failures, which the destructor does not.
    void Close();

private:
    int m_descriptor;
    QString m_path;
};

/// Makes a new directory entry durable, if the file system supports it.
void SyncFolderOf(const QString& path);

} // namespace deckforge
