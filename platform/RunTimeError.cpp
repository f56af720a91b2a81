// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/RunTimeError.h"

namespace deckforge {

namespace {

struct Row {
    ErrorNumber Number;
    const char* Description;
};

constexpr Row DefaultDescriptions[] = {
    {ErrorNumber::InvalidCall, "Invalid procedure call or argument"},
    {ErrorNumber::Overflow, "Overflow"},
    {ErrorNumber::OutOfMemory, "Out of memory"},
    {ErrorNumber::SubscriptOutOfRange, "Subscript out of range"},
    {ErrorNumber::TypeMismatch, "Type mismatch"},
    {ErrorNumber::BadFileName, "Bad file name or number"},
    {ErrorNumber::FileNotFound, "File not found"},
    {ErrorNumber::DeviceIo, "Device I/O error"},
    {ErrorNumber::DiskFull, "Disk full"},
    {ErrorNumber::InputPastEnd, "Input past end of file"},
    {ErrorNumber::PermissionDenied, "Permission denied"},
    {ErrorNumber::PathFileAccess, "Path/File access error"},
    {ErrorNumber::PathNotFound, "Path not found"},
    {ErrorNumber::InvalidPropertyValue, "Invalid property value"},
    {ErrorNumber::InvalidPicture, "Invalid picture"},
    {ErrorNumber::PrinterError, "Printer error"},
};

QString DefaultDescription(ErrorNumber number)
{
    for (const Row& row : DefaultDescriptions) {
        if (row.Number == number)
            return QString::fromLatin1(row.Description);
    }
    return QStringLiteral("Application-defined or object-defined error");
}

} // namespace

RunTimeError::RunTimeError(ErrorNumber number) : RunTimeError(number, DefaultDescription(number)) {}

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
