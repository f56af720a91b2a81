// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/FileHandle.h"

#include "platform/Paths.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace deckforge {

RunTimeError SystemFailure(int error, const QString& path)
{
    switch (error) {
    case ENOENT: {
        const QString folder = FolderPart(path);
        const bool folderExists = folder.isEmpty() || QFileInfo(PathToOpen(folder)).isDir();
        return RunTimeError(folderExists && !NamePart(path).isEmpty() ? ErrorNumber::FileNotFound
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

FileHandle::FileHandle(const QString& path, int flags, mode_t mode)
    : m_descriptor(::open(NameForSystem(path).constData(), flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode)),
      m_path(path)
{
    if (m_descriptor < 0)
        throw SystemFailure(errno, path);
    // A non-blocking write to a pipe would fail when its buffer is full.
    if (const int given = ::fcntl(m_descriptor, F_GETFL); given >= 0)
        ::fcntl(m_descriptor, F_SETFL, given & ~O_NONBLOCK);
}

FileHandle::FileHandle(FileHandle&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, -1)), m_path(std::move(other.m_path))
{
}

FileHandle::~FileHandle()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

struct stat FileHandle::Status() const
{
    struct stat status = {};
    if (::fstat(m_descriptor, &status) != 0)
        throw SystemFailure(errno, m_path);
    return status;
}

qint64 FileHandle::Read(char* bytes, qint64 size)
{
    qint64 done = 0;
    while (done < size) {
        const ssize_t got = ::read(m_descriptor, bytes + done, static_cast<size_t>(size - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw SystemFailure(errno, m_path);
        if (got == 0)
            break;
        done += got;
    }
    return done;
}

void FileHandle::Write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(m_descriptor, bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            throw SystemFailure(errno, m_path);
        bytes = bytes.sliced(written);
    }
}

void FileHandle::WriteFrom(FileHandle& source)
{
    constexpr qint64 chunkBytes = 1 << 20;
    QByteArray chunk(chunkBytes, Qt::Uninitialized);
    while (const qint64 size = source.Read(chunk.data(), chunk.size()))
        Write(QByteArrayView(chunk).first(size));
}

void FileHandle::Sync()
{
    // Devices, pipes and some file systems do not support it.
    if (::fsync(m_descriptor) != 0 && errno != EINVAL && errno != EROFS)
        throw SystemFailure(errno, m_path);
}

void FileHandle::Close()
{
    if (::close(std::exchange(m_descriptor, -1)) != 0 && errno != EINTR)
        throw SystemFailure(errno, m_path);
}

void SyncFolderOf(const QString& path)
{
    const QString folder = FolderPart(path);
    const QByteArray name = NameForSystem(folder.isEmpty() ? QStringLiteral(".") : folder);
    const int descriptor = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return; // the folder may not be readable
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace deckforge
