#pragma once

#include <QString>
#include <exception>
#include <new>

namespace deckforge {

/// The numbers by which a failure is told to the user.
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
    JpegLibrary = 26001, ///< raised by the JPEG writer alone
};

/// A failure with a number and a description, thrown where it happens. Whoever knows the file adds it as the
/// place: "SET.dkf:120", "/pictures/wolf.bmp".
class RunTimeError : public std::exception {
public:
    /// With the usual description of the number.
    explicit RunTimeError(ErrorNumber number);
    RunTimeError(ErrorNumber number, QString description);

    [[nodiscard]] ErrorNumber Number() const { return m_number; }
    [[nodiscard]] const QString& Description() const { return m_description; }
    /// The same failure at a place; one that has a place keeps it.
    [[nodiscard]] RunTimeError At(const QString& place) const;
    [[nodiscard]] const QString& Place() const { return m_place; } ///< empty if unknown
    [[nodiscard]] const char* what() const noexcept override { return m_text.constData(); }

    /// "53, File not found": how boxes tell a failure.
    [[nodiscard]] QString NumberAndDescription() const;

    /// "SET.dkf:120: Type mismatch": how a line of a report tells it.
    [[nodiscard]] QString PlaceAndDescription() const;

    /// A file or a folder on the way to it is not there.
    [[nodiscard]] bool IsMissingFile() const;

private:
    ErrorNumber m_number;
    QString m_description;
    QString m_place;
    QByteArray m_text;
};

/// Runs the step; its failures get the place.
template <class Step>
void WithPlace(const QString& place, Step&& step)
{
    try {
        step();
    } catch (const RunTimeError& error) {
        throw error.At(place);
    }
}

/// Runs the step with a lack of memory told as error 7, for those who trap failures.
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
