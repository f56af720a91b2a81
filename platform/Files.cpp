#include "platform/Files.h"

#include "platform/Paths.h"
#include "platform/RunTimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace deckforge {

namespace {

/// The failure that the system's error number stands for.
RunTimeError FailureOf(int error, const QString& path)
{
    switch (error) {
    case ENOENT: {
        const QString folder = FolderPart(path);
        const bool folderIsThere = folder.isEmpty() || QFileInfo(PathToOpen(folder)).isDir();
        return RunTimeError(folderIsThere && !NamePart(path).isEmpty() ? ErrorNumber::FileNotFound
                                                                       : ErrorNumber::PathNotFound);
    }
    case ENOTDIR:
        return RunTimeError(ErrorNumber::PathNotFound);
    case EACCES:
    case EPERM:
        return RunTimeError(ErrorNumber::PermissionDenied);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return RunTimeError(ErrorNumber::DiskFull);
    case ENAMETOOLONG:
    case EINVAL:
        return RunTimeError(ErrorNumber::BadFileName);
    case ENOMEM:
        return RunTimeError(ErrorNumber::OutOfMemory);
    case EIO:
        return RunTimeError(ErrorNumber::DeviceIo);
    default:
        return RunTimeError(ErrorNumber::PathFileAccess);
    }
}

QByteArray NameForSystem(const QString& path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        throw RunTimeError(ErrorNumber::BadFileName);
    return QFile::encodeName(PathToOpen(path));
}

int OpenHandle(const QString& path, int flags)
{
    constexpr mode_t newFileMode = 0666;
    const int handle =
        ::open(NameForSystem(path).constData(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, newFileMode);
    if (handle < 0)
        throw FailureOf(errno, path);
    return handle;
}

/// Sees to it that a new name in a folder is on the disk as well.
void SyncFolderOf(const QString& path)
{
    const QString folder = FolderPart(path);
    const int handle = OpenHandle(folder.isEmpty() ? QStringLiteral(".") : folder, O_RDONLY | O_DIRECTORY);
    ::fsync(handle); // some file systems have no such thing, and nothing to lose by it
    ::close(handle);
}

FileAttributes AttributesIn(const struct stat& status)
{
    constexpr mode_t permissionBits = 07777;
    return {.Size = status.st_size,
            .LastAccess = status.st_atim,
            .LastWrite = status.st_mtim,
            .Permissions = status.st_mode & permissionBits};
}

struct stat StatusOf(int handle, const QString& path)
{
    struct stat status = {};
    if (::fstat(handle, &status) != 0)
        throw FailureOf(errno, path);
    return status;
}

/// Reads until the bytes are full or the file ends; gives how many came.
qint64 ReadInto(int handle, char* bytes, qint64 size, const QString& path)
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t got = ::read(handle, bytes + done, static_cast<size_t>(size - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw FailureOf(errno, path);
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

} // namespace

void TakeSizeLimitAsFullDisk()
{
    ::signal(SIGXFSZ, SIG_IGN);
}

QByteArray ReadWholeFile(const QString& path, qint64 mostBytes)
{
    const int handle = OpenHandle(path, O_RDONLY);
    const auto close = qScopeGuard([handle] { ::close(handle); });
    const struct stat status = StatusOf(handle, path);
    if (!S_ISREG(status.st_mode))
        throw RunTimeError(ErrorNumber::PathFileAccess);
    if (status.st_size > mostBytes)
        throw RunTimeError(ErrorNumber::OutOfMemory);
    QByteArray bytes(status.st_size, Qt::Uninitialized);
    bytes.truncate(ReadInto(handle, bytes.data(), bytes.size(), path));
    return bytes;
}

std::optional<FileAttributes> AttributesOf(const QString& path)
{
    struct stat status = {};
    if (::stat(NameForSystem(path).constData(), &status) != 0)
        return std::nullopt;
    return AttributesIn(status);
}

OutputFile::OutputFile(const QString& path)
    : m_handle(OpenHandle(path, O_WRONLY | O_CREAT | O_TRUNC)), m_path(path)
{
}

OutputFile::~OutputFile()
{
    if (m_handle >= 0)
        ::close(m_handle);
}

void OutputFile::Write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_handle, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw FailureOf(errno, m_path);
        bytes = bytes.sliced(written);
    }
}

void OutputFile::TakeTimesAndPermissions(const FileAttributes& from)
{
    const timespec times[] = {from.LastAccess, from.LastWrite};
    if (::futimens(m_handle, times) != 0 || ::fchmod(m_handle, from.Permissions) != 0)
        throw FailureOf(errno, m_path);
}

void OutputFile::Close()
{
    const int handle = m_handle;
    m_handle = -1;
    if (::close(handle) != 0 && errno != EINTR)
        throw FailureOf(errno, m_path);
}

void OutputFile::CloseOnDisk()
{
    // Devices and pipes have nothing to wait for, and say so.
    if (::fsync(m_handle) != 0 && errno != EINVAL && errno != EROFS)
        throw FailureOf(errno, m_path);
    Close();
}

void CheckWritable(const QString& path)
{
    ::close(OpenHandle(path, O_WRONLY));
}

void CopyFileSafely(const QString& from, const QString& to)
{
    constexpr qint64 chunkBytes = 1 << 20;
    const QString unfinished = to + QStringLiteral("~");
    RemoveFile(unfinished);
    auto removeUnfinished = qScopeGuard([&] { ::unlink(NameForSystem(unfinished).constData()); });
    const int source = OpenHandle(from, O_RDONLY);
    const auto close = qScopeGuard([source] { ::close(source); });
    OutputFile copy(unfinished);
    QByteArray chunk(chunkBytes, Qt::Uninitialized);
    while (const qint64 size = ReadInto(source, chunk.data(), chunk.size(), from))
        copy.Write(QByteArrayView(chunk).first(size));
    copy.TakeTimesAndPermissions(AttributesIn(StatusOf(source, from))); // its name may be gone by now
    copy.CloseOnDisk();
    RenameFile(unfinished, to);
    removeUnfinished.dismiss();
}

bool IsRegularFile(const QString& path)
{
    struct stat status = {};
    return ::stat(NameForSystem(path).constData(), &status) == 0 && S_ISREG(status.st_mode);
}

void RenameFile(const QString& from, const QString& to)
{
    if (std::rename(NameForSystem(from).constData(), NameForSystem(to).constData()) != 0)
        throw FailureOf(errno, to);
    SyncFolderOf(to);
}

void RemoveFile(const QString& path)
{
    if (::unlink(NameForSystem(path).constData()) != 0 && errno != ENOENT)
        throw FailureOf(errno, path);
}

} // namespace deckforge
