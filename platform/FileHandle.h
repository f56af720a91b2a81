#pragma once

#include "platform/RunTimeError.h"

#include <QByteArrayView>
#include <QString>
#include <fcntl.h>
#include <sys/stat.h>

namespace deckforge {

// The system's files, for the functions of Files.h and SaveFile.h.

/// The failure that the system's error number means for the path.
[[nodiscard]] RunTimeError SystemFailure(int error, const QString& path);

/// The path as the system takes it. Error 52 for an empty one and for one with a NUL.
[[nodiscard]] QByteArray NameForSystem(const QString& path);

/// An open file descriptor; failures are RunTimeErrors for its path. Opening never waits for the other end of
/// a fifo; once open, reads and writes block.
class FileHandle {
public:
    static constexpr mode_t DefaultMode = 0666; ///< less the umask

    FileHandle(const QString& path, int flags, mode_t mode = DefaultMode);
    FileHandle(FileHandle&& other) noexcept;
    FileHandle& operator=(FileHandle&&) = delete;
    ~FileHandle();

    [[nodiscard]] int Descriptor() const { return m_descriptor; }
    [[nodiscard]] const QString& Path() const { return m_path; }
    [[nodiscard]] struct stat Status() const;

    /// Reads until the bytes are full or the file ends; returns how many came.
    qint64 Read(char* bytes, qint64 size);
    void Write(QByteArrayView bytes);
    /// Writes the rest of the other file, piece by piece.
    void WriteFrom(FileHandle& source);

    /// Waits until the bytes are on the disk.
    void Sync();
    /// Reports a late failure, which the destructor does not.
    void Close();

private:
    int m_descriptor;
    QString m_path;
};

/// Makes a new name in the folder of the path durable, as far as the file system can.
void SyncFolderOf(const QString& path);

} // namespace deckforge
