// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/SaveFile.h"

#include "platform/FileHandle.h"
#include "platform/Paths.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <optional>
#include <sys/file.h>
#include <sys/xattr.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace deckforge {

namespace {

constexpr mode_t PrivateMode = 0600;
constexpr mode_t PermissionBits = 07777;
constexpr char UnfinishedPrefix[] = ".deckforge-";
constexpr char SafetyCopyPrefix[] = "safety-copy-";
constexpr char SafetyCopySuffix[] = ".dkf"; ///< so that the file dialog lists it

/// Whether the error means that no file can be created in the folder, rather than a full or failing disk.
bool CannotCreateFile(const RunTimeError& error)
{
    return error.Number() == ErrorNumber::PermissionDenied || error.Number() == ErrorNumber::PathFileAccess;
}

/// A new file with a unique name. The destructor removes it unless Keep() was called.
class NewFile {
public:
    /// The name is short, since the set's own name may have the maximum length.
    NewFile(const QString& prefix, const char* suffix, mode_t mode)
        : m_file(prefix + QString::number(QRandomGenerator::system()->generate64(), 36) +
                     QLatin1String(suffix),
                 O_RDWR | O_CREAT | O_EXCL, mode),
          m_name(NameForSystem(m_file.Path()))
    {
    }
    NewFile(NewFile&& other) noexcept
        : m_file(std::move(other.m_file)), m_name(std::move(other.m_name)),
          m_isKept(std::exchange(other.m_isKept, true))
    {
    }
    NewFile& operator=(NewFile&&) = delete;
    ~NewFile()
    {
        if (!m_isKept)
            Remove();
    }

    [[nodiscard]] FileHandle& File() { return m_file; }
    void Keep() { m_isKept = true; }
    void Remove()
    {
        ::unlink(m_name.constData());
        Keep();
    }

    /// Renames it atomically to the path; returns errno. Throws if the data does not reach the disk.
    [[nodiscard]] int Replace(const QString& path)
    {
        m_file.Sync();
        m_file.Close();
        if (std::rename(m_name.constData(), NameForSystem(path).constData()) != 0)
            return errno;
        Keep();
        SyncFolderOf(path);
        return 0;
    }

private:
    FileHandle m_file;
    QByteArray m_name;
    bool m_isKept = false;
};

/// The target of all links, which need not exist.
QString FollowLinks(QString path)
{
    constexpr int maxLinks = 40; // the limit of the system
    for (int i = 0; i < maxLinks; ++i) {
        char target[PATH_MAX];
        const ssize_t length = ::readlink(NameForSystem(path).constData(), target, sizeof target);
        if (length < 0)
            return path;
        const QString next = QFile::decodeName(QByteArray(target, length));
        path = QDir::isAbsolutePath(next) ? next : FolderPart(path) + next;
    }
    throw SystemFailure(ELOOP, path);
}

std::optional<struct stat> StatusAt(const QString& path)
{
    struct stat status = {};
    if (::stat(NameForSystem(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

/// Waits for other processes that save the file. The lock is released when its process ends; file systems
/// without locks are not locked.
void Lock(const FileHandle& file)
{
    using namespace std::chrono_literals;
    const auto deadline = std::chrono::steady_clock::now() + 10s;
    while (::flock(file.Descriptor(), LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK && errno != EINTR)
            return;
        if (std::chrono::steady_clock::now() > deadline)
            throw RunTimeError(ErrorNumber::PermissionDenied,
                               QStringLiteral("Permission denied: another program keeps the file locked"));
        std::this_thread::sleep_for(10ms);
    }
}

/// Opens the file for writing and locks it.
FileHandle OpenLocked(const QString& path)
{
    for (;;) {
        FileHandle file(path, O_WRONLY);
        Lock(file);
        if (file.Status().st_nlink > 0)
            return file;
        // The process that held the lock has replaced the file.
    }
}

/// Whether a new file would differ only in contents and times.
bool CanBeReplaced(const QString& path, const struct stat& status)
{
    const bool hasAccessList =
        ::getxattr(NameForSystem(path).constData(), "system.posix_acl_access", nullptr, 0) > 0;
    return status.st_nlink == 1 && !hasAccessList;
}

/// Copies owner and permissions; false if the file system does not allow it.
bool TakeOwnerAndPermissions(const FileHandle& file, const struct stat& from)
{
    struct stat status = file.Status();
    if (status.st_uid != from.st_uid || status.st_gid != from.st_gid)
        (void)!::fchown(file.Descriptor(), from.st_uid, from.st_gid);
    if ((status.st_mode & PermissionBits) != (from.st_mode & PermissionBits))
        (void)!::fchmod(file.Descriptor(), from.st_mode & PermissionBits);
    status = file.Status();
    return status.st_uid == from.st_uid && status.st_gid == from.st_gid && status.st_mode == from.st_mode;
}

/// Replaces the file atomically. Returns false, with no change, if only overwriting keeps its attributes.
bool ReplaceInOneStep(const FileHandle& old, QByteArrayView bytes)
{
    const struct stat status = old.Status();
    if (!CanBeReplaced(old.Path(), status))
        return false;
    try {
        NewFile file(FolderPart(old.Path()) + QLatin1String(UnfinishedPrefix), "", PrivateMode);
        if (!TakeOwnerAndPermissions(file.File(), status))
            return false;
        file.File().Write(bytes);
        const int error = file.Replace(old.Path());
        if (error != 0 && error != EBUSY && error != EXDEV) // both mean a mount point
            throw SystemFailure(error, old.Path());
        return error == 0;
    } catch (const RunTimeError& error) {
        if (CannotCreateFile(error))
            return false;
        throw;
    }
}

/// The prefix of the names of the file's safety copies, in any folder.
QString SafetyCopyName(const QString& path)
{
    const QByteArray file = QFileInfo(PathToOpen(path)).canonicalFilePath().toUtf8();
    constexpr int hashLetters = 8;
    const QByteArray hash = QCryptographicHash::hash(file, QCryptographicHash::Sha256).toHex();
    return QLatin1String(SafetyCopyPrefix) + QString::fromLatin1(hash.first(hashLetters)) + QLatin1Char('-');
}

/// Creates a copy on the disk: in the file's folder, or in the program's folder if that is not possible.
NewFile MakeSafetyCopy(const QString& path)
{
    const auto copyTo = [&](const QString& folder) {
        FileHandle source(path, O_RDONLY);
        NewFile copy(folder + SafetyCopyName(path), SafetyCopySuffix, PrivateMode);
        copy.File().WriteFrom(source);
        copy.File().Sync();
        SyncFolderOf(copy.File().Path());
        return copy;
    };
    try {
        return copyTo(FolderPart(path));
    } catch (const RunTimeError& error) {
        if (!CannotCreateFile(error))
            throw;
    }
    return copyTo(ProgramFolder());
}

/// Restores the old bytes after a failure. If that fails too, the copy is kept, and the error says where.
[[noreturn]] void Restore(FileHandle& file, NewFile& copy, const RunTimeError& failure)
{
    try {
        const off_t size = copy.File().Status().st_size;
        ::lseek(file.Descriptor(), 0, SEEK_SET);
        ::lseek(copy.File().Descriptor(), 0, SEEK_SET);
        file.WriteFrom(copy.File());
        if (::ftruncate(file.Descriptor(), size) != 0)
            throw SystemFailure(errno, file.Path());
        file.Sync();
    } catch (const RunTimeError&) {
        const QString where =
            QStringLiteral(".\r\n\r\nThe file is damaged. What it held before is in\r\n\r\n%1");
        throw RunTimeError(failure.Number(), failure.Description() + where.arg(copy.File().Path()));
    }
    copy.Remove();
    throw failure;
}

void OverwriteBehindCopy(FileHandle& file, QByteArrayView bytes)
{
    NewFile copy = MakeSafetyCopy(file.Path());
    copy.Keep(); // until either file is complete on the disk
    try {
        file.Write(bytes); // without truncating, so that the old blocks stay allocated
        if (::ftruncate(file.Descriptor(), bytes.size()) != 0)
            throw SystemFailure(errno, file.Path());
        file.Sync();
    } catch (const RunTimeError& failure) {
        Restore(file, copy, failure);
    }
    copy.Remove();
}

void WriteStraight(const QString& path, QByteArrayView bytes)
{
    FileHandle file(path, O_WRONLY | O_TRUNC);
    file.Write(bytes);
    file.Sync();
    file.Close();
}

void MakeFile(const QString& path, QByteArrayView bytes)
{
    NewFile file(FolderPart(path) + QLatin1String(UnfinishedPrefix), "", FileHandle::DefaultMode);
    file.File().Write(bytes);
    if (const int error = file.Replace(path))
        throw SystemFailure(error, path);
}

} // namespace

void SaveFile(const QString& path, QByteArrayView bytes)
{
    const std::optional<struct stat> status = StatusAt(path);
    if (status && !S_ISREG(status->st_mode)) {
        WriteStraight(path, bytes);
        return;
    }
    const QString target = FollowLinks(PathToOpen(path));
    if (!status) {
        MakeFile(target, bytes);
        return;
    }
    FileHandle old = OpenLocked(target);
    if (!ReplaceInOneStep(old, bytes))
        OverwriteBehindCopy(old, bytes);
}

QStringList SafetyCopiesOf(const QString& path)
{
    const QString name = SafetyCopyName(path);
    QStringList copies;
    for (const QString& folder : {QFileInfo(PathToOpen(path)).canonicalPath(), ProgramFolder()}) {
        for (const QString& entry : QDir(folder).entryList(QDir::Files, QDir::Unsorted)) {
            if (entry.startsWith(name))
                copies += QFileInfo(folder, entry).canonicalFilePath();
        }
    }
    copies.removeDuplicates();
    return copies;
}

bool IsSafetyCopy(const QString& path)
{
    return NamePart(path).startsWith(QLatin1String(SafetyCopyPrefix));
}

} // namespace deckforge
