#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace deckforge {

// The single-byte code page of set files, Windows-1252. The five bytes that it leaves unassigned stand for
// the control characters of the same value, so every byte survives a round trip.

/// Never fails.
[[nodiscard]] QString FromCodePage(QByteArrayView bytes);

/// Whether the code page has every character of the text.
[[nodiscard]] bool IsInCodePage(QStringView text);

/// What becomes of a character that the code page lacks.
enum class Lacking { Refuse, QuestionMark };

/// Appends the text to the bytes. A character that is refused is error 5 with a description that names it;
/// the bytes then hold what stood before the text.
void AppendInCodePage(QByteArray& bytes, QStringView text, Lacking lacking = Lacking::Refuse);

} // namespace deckforge
