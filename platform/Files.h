// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/FileHandle.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <compare>
#include <ctime>
#include <optional>

namespace deckforge {

// File functions. Failures are errors 52, 53, 57, 61, 70, 75 and 76, depending on errno. Opening never waits:
// reading a FIFO or device is error 75, and so is writing a FIFO without a reader. Paths may contain either
// separator.

/// Makes writing past the session's file size limit error 61, as on a full disk. By default the signal would
/// terminate the program.
void TakeSizeLimitAsFullDisk();

/// The contents of a regular file. Error 7 if it has more than maxBytes.
[[nodiscard]] QByteArray ReadWholeFile(const QString& path, qint64 maxBytes);

/// Identifies an existing file whatever its names.
struct FileId {
    quint64 Device = 0;
    quint64 Inode = 0;

    auto operator<=>(const FileId&) const = default; // NOLINT(modernize-use-nullptr): misread by the check
};

struct FileAttributes {
    FileId Id = {};
    qint64 Size = 0;
    timespec LastAccess = {};
    timespec LastWrite = {};
    unsigned int Permissions = 0;
};

/// Whether a file with these attributes has not been written in between.
[[nodiscard]] bool HaveSameContents(const FileAttributes& before, const FileAttributes& now);

/// Nothing if the file does not exist.
[[nodiscard]] std::optional<FileAttributes> AttributesOf(const QString& path);

/// A file being written. The destructor closes it, keeps what was written, and reports no failure.
class OutputFile : public FileHandle {
public:
    /// Truncates an existing file or creates a new one.
    explicit OutputFile(const QString& path) : FileHandle(path, O_WRONLY | O_CREAT | O_TRUNC) {}

    /// As far as the file system allows.
    void TakeTimesAndPermissions(const FileAttributes& from);
};

/// Fails as opening an existing file for writing would. Does not change it.
void CheckWritable(const QString& path);

/// Whether the path is a regular file, after following links.
[[nodiscard]] bool IsRegularFile(const QString& path);

/// Whether both paths are the same existing file, through links of any kind.
[[nodiscard]] bool IsSameFile(const QString& one, const QString& other);

/// Whether there is a folder that is the user's own and closed to others; a link is none. The path ends
/// without a separator.
[[nodiscard]] bool IsPrivateFolder(const QString& folder);

/// Makes such a folder if it is not there. Error 75 where something else has its name.
void MakePrivateFolder(const QString& folder);

/// Renames a file atomically within its file system, replacing the target. The new name is on the disk when
/// this returns.
void RenameFile(const QString& from, const QString& to);

/// Removes a file. Not an error if it does not exist.
void RemoveFile(const QString& path);

} // namespace deckforge
