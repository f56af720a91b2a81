#pragma once

#include "platform/FileHandle.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <compare>
#include <ctime>
#include <optional>

namespace deckforge {

// Files with the failures that this program reports: 52, 53, 57, 61, 70, 75 and 76 by what the system says.
// Opening never waits: a fifo or a device is error 75 where it is read, and a fifo that nobody reads where it
// is written. Paths may hold either separator.

/// From now on a write past the limit that the session sets to files is error 61, as on a full disk. Without
/// this the system ends the program there.
void TakeSizeLimitAsFullDisk();

/// The whole of a regular file. A file of more than mostBytes is error 7.
[[nodiscard]] QByteArray ReadWholeFile(const QString& path, qint64 mostBytes);

/// Identifies an existing file whatever its names.
struct FileId {
    quint64 Device = 0;
    quint64 Inode = 0;

    auto operator<=>(const FileId&) const = default;
};

struct FileAttributes {
    FileId Id = {};
    qint64 Size = 0;
    timespec LastAccess = {};
    timespec LastWrite = {};
    unsigned int Permissions = 0;
};

/// Whether a file with these attributes has not been written to between both looks at it.
[[nodiscard]] bool HaveSameContents(const FileAttributes& before, const FileAttributes& now);

/// Nothing when there is no file.
[[nodiscard]] std::optional<FileAttributes> AttributesOf(const QString& path);

/// A file being written. The destructor closes it and keeps what was written; only a closing reports a late
/// failure.
class OutputFile {
public:
    /// Empties the file that is there, or makes it.
    explicit OutputFile(const QString& path);

    void Write(QByteArrayView bytes) { m_file.Write(bytes); }
    /// As far as the volume allows it.
    void TakeTimesAndPermissions(const FileAttributes& from);

    void Close() { m_file.Close(); }
    void CloseOnDisk(); ///< waits until the bytes are on the disk

private:
    FileHandle m_file;
};

/// Fails as opening an existing file for writing would, and leaves it alone.
void CheckWritable(const QString& path);

/// Whether there is a regular file at the path, links followed.
[[nodiscard]] bool IsRegularFile(const QString& path);

/// Whether both paths lead to one existing file, by links of any kind.
[[nodiscard]] bool IsSameFile(const QString& one, const QString& other);

/// Whether there is a folder that is the user's own and closed to others; a link is none. The path ends
/// without a separator.
[[nodiscard]] bool IsPrivateFolder(const QString& folder);

/// Makes such a folder if it is not there. Error 75 where something else has its name.
void MakePrivateFolder(const QString& folder);

/// Gives a file another name in its folder or disk; what has that name goes. It has one of the two names at
/// any moment, and the new one on the disk before this returns.
void RenameFile(const QString& from, const QString& to);

/// Takes a file away; no failure when it is not there.
void RemoveFile(const QString& path);

} // namespace deckforge
