// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

QString UsualDescription(ErrorNumber number)
{
    switch (number) {
    case ErrorNumber::InvalidCall:
        return QStringLiteral("Invalid procedure call or argument");
    case ErrorNumber::Overflow:
        return QStringLiteral("Overflow");
    case ErrorNumber::OutOfMemory:
        return QStringLiteral("Out of memory");
    case ErrorNumber::SubscriptOutOfRange:
        return QStringLiteral("Subscript out of range");
    case ErrorNumber::TypeMismatch:
        return QStringLiteral("Type mismatch");
    case ErrorNumber::BadFileName:
        return QStringLiteral("Bad file name or number");
    case ErrorNumber::FileNotFound:
        return QStringLiteral("File not found");
    case ErrorNumber::DeviceIo:
        return QStringLiteral("Device I/O error");
    case ErrorNumber::DiskFull:
        return QStringLiteral("Disk full");
    case ErrorNumber::InputPastEnd:
        return QStringLiteral("Input past end of file");
    case ErrorNumber::PermissionDenied:
        return QStringLiteral("Permission denied");
    case ErrorNumber::PathFileAccess:
        return QStringLiteral("Path/File access error");
    case ErrorNumber::PathNotFound:
        return QStringLiteral("Path not found");
    case ErrorNumber::InvalidPropertyValue:
        return QStringLiteral("Invalid property value");
    case ErrorNumber::InvalidPicture:
        return QStringLiteral("Invalid picture");
    case ErrorNumber::PrinterError:
        return QStringLiteral("Printer error");
    case ErrorNumber::JpegLibrary:
        break;
    }
    return QStringLiteral("Application-defined or object-defined error");
}

} // namespace

RunTimeError::RunTimeError(ErrorNumber number) : RunTimeError(number, UsualDescription(number)) {}

RunTimeError::RunTimeError(ErrorNumber number, QString description)
    : m_number(number), m_description(std::move(description)), m_text(NumberAndDescription().toUtf8())
{
}

RunTimeError RunTimeError::At(const QString& place) const
{
    RunTimeError placed = *this;
    if (placed.m_place.isEmpty())
        placed.m_place = place;
    return placed;
}

QString RunTimeError::NumberAndDescription() const
{
    return QString::number(static_cast<int>(m_number)) + QStringLiteral(", ") + m_description;
}

QString RunTimeError::PlaceAndDescription() const
{
    return m_place.isEmpty() ? m_description : m_place + QStringLiteral(": ") + m_description;
}

bool RunTimeError::IsMissingFile() const
{
    return m_number == ErrorNumber::FileNotFound || m_number == ErrorNumber::PathNotFound;
}

} // namespace deckforge
