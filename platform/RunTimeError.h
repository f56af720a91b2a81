// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <exception>
#include <new>

namespace deckforge {

/// Error numbers that are shown to the user.
enum class ErrorNumber {
    InvalidCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    DeviceIo = 57,
    DiskFull = 61,
    InputPastEnd = 62,
    PermissionDenied = 70,
    PathFileAccess = 75,
    PathNotFound = 76,
    InvalidPropertyValue = 380,
    InvalidPicture = 481,
    PrinterError = 482,
    JpegLibrary = 26001, ///< raised only by the JPEG writer
};

/// A failure with a number and a description. Callers that know the file add the place: "SET.dkf:120",
/// "/pictures/wolf.bmp".
class RunTimeError : public std::exception {
public:
    /// With the default description of the number.
    explicit RunTimeError(ErrorNumber number);
    RunTimeError(ErrorNumber number, QString description);

    [[nodiscard]] ErrorNumber Number() const { return m_number; }
    [[nodiscard]] const QString& Description() const { return m_description; }
    /// The same failure at a place, unless it already has one.
    [[nodiscard]] RunTimeError At(const QString& place) const;
    [[nodiscard]] const QString& Place() const { return m_place; } ///< empty if unknown
    [[nodiscard]] const char* what() const noexcept override { return m_text.constData(); }

    /// "53, File not found", for message boxes.
    [[nodiscard]] QString NumberAndDescription() const;

    /// "SET.dkf:120: Type mismatch", for reports.
    [[nodiscard]] QString PlaceAndDescription() const;

    /// Whether the file or a folder of its path does not exist.
    [[nodiscard]] bool IsMissingFile() const;

private:
    ErrorNumber m_number;
    QString m_description;
    QString m_place;
    QByteArray m_text;
};

/// Runs the step, and adds the place to its failures.
template <class Step>
void WithPlace(const QString& place, Step&& step)
{
    try {
        step();
    } catch (const RunTimeError& error) {
        throw error.At(place);
    }
}

/// Runs the step; std::bad_alloc becomes error 7.
template <class Step>
void WithMemoryAsFailure(Step&& step)
{
    try {
        step();
    } catch (const std::bad_alloc&) {
        throw RunTimeError(ErrorNumber::OutOfMemory);
    }
}

} // namespace deckforge
