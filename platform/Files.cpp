// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Files.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace deckforge {

void TakeSizeLimitAsFullDisk()
{
    ::signal(SIGXFSZ, SIG_IGN);
}

QByteArray ReadWholeFile(const QString& path, qint64 maxBytes)
{
    FileHandle file(path, O_RDONLY);
    const struct stat status = file.Status();
    if (!S_ISREG(status.st_mode))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    if (status.st_size > maxBytes)
        throw RunTimeError(ErrorNumber::OutOfMemory);
    QByteArray bytes(status.st_size, Qt::Uninitialized);
    bytes.truncate(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

std::optional<FileAttributes> AttributesOf(const QString& path)
{
    struct stat status = {};
    if (::stat(NameForSystem(path).constData(), &status) != 0)
        return std::nullopt;
    constexpr mode_t permissionBits = 07777;
    return FileAttributes{.Id = {.Device = status.st_dev, .Inode = status.st_ino},
                          .Size = status.st_size,
                          .LastAccess = status.st_atim,
                          .LastWrite = status.st_mtim,
                          .Permissions = status.st_mode & permissionBits};
}

bool HaveSameContents(const FileAttributes& before, const FileAttributes& now)
{
    return before.Size == now.Size && before.LastWrite.tv_sec == now.LastWrite.tv_sec &&
           before.LastWrite.tv_nsec == now.LastWrite.tv_nsec;
}

void OutputFile::TakeTimesAndPermissions(const FileAttributes& from)
{
    const timespec times[] = {from.LastAccess, from.LastWrite};
    (void)::futimens(Descriptor(), times);
    (void)!::fchmod(Descriptor(), from.Permissions);
}

void CheckWritable(const QString& path)
{
    const FileHandle file(path, O_WRONLY);
}

bool IsRegularFile(const QString& path)
{
    struct stat status = {};
    return ::stat(NameForSystem(path).constData(), &status) == 0 && S_ISREG(status.st_mode);
}

bool IsSameFile(const QString& one, const QString& other)
{
    const auto first = AttributesOf(one);
    const auto second = AttributesOf(other);
    return first && second && first->Id == second->Id;
}

bool IsPrivateFolder(const QString& folder)
{
    struct stat status = {};
    return ::lstat(NameForSystem(folder).constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::getuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

void MakePrivateFolder(const QString& folder)
{
    (void)::mkdir(NameForSystem(folder).constData(), S_IRWXU);
    if (!IsPrivateFolder(folder))
        throw RunTimeError(ErrorNumber::PathFileAccess);
}

void RenameFile(const QString& from, const QString& to)
{
    if (std::rename(NameForSystem(from).constData(), NameForSystem(to).constData()) != 0)
        throw SystemFailure(errno, to);
    SyncFolderOf(to);
}

void RemoveFile(const QString& path)
{
    if (::unlink(NameForSystem(path).constData()) != 0 && errno != ENOENT)
        throw SystemFailure(errno, path);
}

} // namespace deckforge
