// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/Rescue.h"

#include "files/modFile.h"
#include "platform/Paths.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLockFile>
#include <QRandomGenerator>
#include <QScopeGuard>
#include <cstdio>
#include <unistd.h>

namespace deckforge {

namespace {

constexpr int MaxEarlier = 9;
constexpr int LockMilliseconds = 3000; ///< the desktop session does not wait longer at logout

QString RescuedName(const QString& folder, int age)
{
    const QString number = age == 0 ? QString() : QStringLiteral("-%1").arg(age);
    return folder + QStringLiteral("rescued%1.dkf").arg(number);
}

/// Frees a name for a rescued set and returns it. Earlier sets are renumbered up to the first free number. If
/// a set of this folder is about to be opened nothing is renumbered, and that set is not replaced.
QString FreeName(const QString& folder, const QString& toOpen)
{
    int age = 0;
    while (age < MaxEarlier && AttributesOf(RescuedName(folder, age)))
        ++age;
    const QFileInfo opened(toOpen);
    if (opened.exists() && opened.dir() == QDir(folder))
        return RescuedName(folder, opened == QFileInfo(RescuedName(folder, age)) ? age - 1 : age);
    for (; age > 0; --age)
        RenameFile(RescuedName(folder, age - 1), RescuedName(folder, age));
    return RescuedName(folder, 0);
}

/// The last choice for rescue files. It has to be private, since everybody can write to the temporary folder.
QString TemporaryFolder()
{
    return QStringLiteral("%1/varnhelm-deck-forge-%2").arg(QDir::tempPath()).arg(::getuid());
}

QByteArray Hash(const CardSet& set, Unwritable unwritable)
{
    return QCryptographicHash::hash(SetFileBytes(set, unwritable), QCryptographicHash::Sha256);
}

} // namespace

bool IsRescuedSet(const QString& path)
{
    for (int age = 0; age <= MaxEarlier; ++age) {
        if (NamePart(path) == RescuedName({}, age))
            return true;
    }
    return false;
}

UnsavedWork::UnsavedWork(QString programFolder, std::chrono::milliseconds renewAfter)
    : m_programFolder(std::move(programFolder)), m_renewAfter(renewAfter)
{
    m_sinceRenewed.start();
}

void UnsavedWork::Keep(const CardSet& set, const QString& setFolder)
{
    m_setFolder = setFolder;
    m_leftFile.reset();
    m_sinceRenewed.start();
    try {
        m_savedHash = Hash(set, Unwritable::Fail);
    } catch (const RunTimeError&) {
        m_savedHash.clear();
    }
    RemoveOwn();
}

bool UnsavedWork::Differs(const CardSet& set) const
{
    try {
        return Hash(set, Unwritable::Fail) != m_savedHash;
    } catch (const RunTimeError&) {
        return true;
    }
}

void UnsavedWork::Renew(const CardSet& set)
{
    if (m_sinceRenewed.elapsed() < m_renewAfter.count())
        return;
    m_sinceRenewed.start();
    if (Differs(set))
        Rescue(set);
}

std::optional<QString> UnsavedWork::Leave(const CardSet& set, const QString& toOpen)
{
    m_leftFile.reset();
    if (m_own && QFileInfo(PathOfOwn()) == QFileInfo(toOpen))
        m_own.reset();
    if (!Differs(set)) {
        RemoveOwn();
        return std::nullopt;
    }
    const QString path = Rescue(set, toOpen);
    m_leftFile = std::exchange(m_own, std::nullopt);
    m_leftHash = Hash(set, Unwritable::Cut);
    return path;
}

bool UnsavedWork::ReturnTo(const CardSet& set)
{
    if (!m_leftFile || Hash(set, Unwritable::Cut) != m_leftHash)
        return false;
    m_own = std::exchange(m_leftFile, std::nullopt);
    return true;
}

QString UnsavedWork::Rescue(const CardSet& set, const QString& toOpen)
{
    CardSet rescued = set;
    if (set.File)
        rescued.Header.FileName = set.File->Path; // the save dialog proposes it for the rescued set
    const QByteArray bytes = SetFileBytes(rescued, Unwritable::Cut);
    for (const QString& folder : {m_programFolder, m_setFolder}) {
        try {
            if (!folder.isEmpty())
                return WriteTo(folder, bytes, toOpen);
        } catch (const RunTimeError&) {
        }
    }
    MakePrivateFolder(TemporaryFolder());
    return WriteTo(WithSeparator(TemporaryFolder()), bytes, toOpen);
}

QString UnsavedWork::WriteTo(const QString& folder, const QByteArray& bytes, const QString& toOpen)
{
    QDir().mkpath(folder); // it may have been removed meanwhile
    const quint64 random = QRandomGenerator::system()->generate64();
    const QString unfinished = folder + QStringLiteral(".rescued-") + QString::number(random, 36);
    QLockFile lock(RescuedName(folder, 0) + QStringLiteral(".lock"));
    lock.tryLock(LockMilliseconds);
    auto removeUnfinished = qScopeGuard([&] { QFile::remove(unfinished); });
    OutputFile file(unfinished);
    file.Write(bytes);
    file.Sync();
    file.Close();
    QString target = m_own && m_own->Folder == folder ? PathOfOwn() : QString();
    if (target.isEmpty())
        target = FreeName(folder, toOpen);
    RenameFile(unfinished, target);
    removeUnfinished.dismiss();
    m_own = {.Folder = folder, .Attributes = AttributesOf(target).value_or(FileAttributes())};
    return target;
}

/// Empty if the file was removed or changed.
QString UnsavedWork::PathOfOwn() const
{
    for (int age = 0; age <= MaxEarlier; ++age) {
        QString path = RescuedName(m_own->Folder, age);
        const std::optional<FileAttributes> there = AttributesOf(path);
        if (there && HaveSameContents(*there, m_own->Attributes))
            return path;
    }
    return {};
}

void UnsavedWork::RemoveOwn()
{
    if (!m_own)
        return;
    QLockFile lock(RescuedName(m_own->Folder, 0) + QStringLiteral(".lock"));
    lock.tryLock(LockMilliseconds);
    QFile::remove(PathOfOwn()); // a failure does no harm: the file is superfluous
    m_own.reset();
}

void UnsavedWork::RescueAtExit(const CardSet& set) noexcept
{
    try {
        const QString path = Rescue(set);
        std::fprintf(stderr, "The card set is rescued to %s\n", qUtf8Printable(path));
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "The card set could NOT be rescued: %s\n", failure.what());
    }
}

std::optional<UnsavedWork::RescuedSet> UnsavedWork::LatestRescued() const
{
    std::optional<RescuedSet> latest;
    const bool hasTemporary = IsPrivateFolder(TemporaryFolder());
    for (const QString& folder :
         {m_programFolder, m_setFolder, hasTemporary ? WithSeparator(TemporaryFolder()) : QString()}) {
        for (int age = 0; age <= MaxEarlier && !folder.isEmpty(); ++age) {
            const QString path = RescuedName(folder, age);
            const std::optional<FileAttributes> there = AttributesOf(path);
            const QDateTime time = QDateTime::fromSecsSinceEpoch(there ? there->LastWrite.tv_sec : 0);
            if (there && (!latest || time > latest->Time))
                latest = RescuedSet{.Path = path, .Time = time};
        }
    }
    return latest;
}

} // namespace deckforge
