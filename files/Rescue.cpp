#include "files/Rescue.h"

#include "platform/Files.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLockFile>
#include <cstdio>

namespace deckforge {

namespace {

constexpr int MostEarlier = 9;
constexpr int LockMilliseconds = 3000; ///< the end of a session waits for nobody longer

QString RescuedName(const QString& folder, int age)
{
    const QString number = age == 0 ? QString() : QStringLiteral("-%1").arg(age);
    return folder + QStringLiteral("rescued%1.dkf").arg(number);
}

/// Earlier sets move on by one, up to the first name that is free.
void MakeRoom(const QString& folder)
{
    int age = 0;
    while (age < MostEarlier && AttributesOf(RescuedName(folder, age)))
        ++age;
    for (; age > 0; --age)
        RenameFile(RescuedName(folder, age - 1), RescuedName(folder, age));
}

QByteArray PrintOf(const CardSet& set)
{
    try {
        return QCryptographicHash::hash(SetFileBytes(set, Unwritable::Fail), QCryptographicHash::Sha256);
    } catch (const RunTimeError&) {
        return {};
    }
}

} // namespace

QString RescueSet(const CardSet& set, const QString& folder)
{
    QDir().mkpath(folder); // it may have gone since the program began
    QString target = RescuedName(folder, 0);
    const QString unfinished = target + QStringLiteral("~");
    QLockFile lock(target + QStringLiteral(".lock"));
    lock.tryLock(LockMilliseconds);
    OutputFile file(unfinished);
    file.Write(SetFileBytes(set, Unwritable::Mend));
    file.CloseOnDisk();
    MakeRoom(folder);
    RenameFile(unfinished, target);
    return target;
}

void RescueAtTheEnd(const CardSet& set, const QString& folder, Report report) noexcept
{
    const auto tellFailure = [](const char* reason) {
        std::fprintf(stderr, "The card set could NOT be rescued: %s\n", reason);
    };
    try {
        const QString path = RescueSet(set, folder);
        if (report == Report::Tell)
            std::fprintf(stderr, "The card set is rescued to %s\n", qUtf8Printable(path));
    } catch (const std::exception& failure) {
        tellFailure(failure.what());
    }
}

void KeptSet::Keep(const CardSet& set)
{
    m_print = PrintOf(set);
}

bool KeptSet::Differs(const CardSet& set) const
{
    const QByteArray print = PrintOf(set);
    return print.isEmpty() || print != m_print;
}

} // namespace deckforge
