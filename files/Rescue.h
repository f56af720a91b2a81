#pragma once

#include "core/CardSet.h"

namespace deckforge {

// A way back for a set that was in memory when the program ended without a question.

/// Writes the set to "rescued.dkf" in the folder and gives the path. The ones of earlier times become
/// "rescued-1.dkf", the latest, to "rescued-9.dkf"; the tenth goes. Several programs may do so at once.
///
/// A text that no set file can hold is mended, so that it takes nothing else with it. A failure of the file
/// is thrown; the earlier ones then stand as they did.
QString RescueSet(const CardSet& set, const QString& folder);

/// The same for a program that ends and has nobody left to ask: standard error tells where the set is, or why
/// it could not be rescued. Throws nothing.
void RescueAtTheEnd(const CardSet& set, const QString& folder) noexcept;

/// What a set was when it was last read, written or made anew.
class KeptSet {
public:
    void Keep(const CardSet& set);

    /// Whether the file of the set would be another now. A set that no file can hold always differs.
    [[nodiscard]] bool Differs(const CardSet& set) const;

private:
    QByteArray m_print; ///< of the bytes of the file; empty where there can be none
};

} // namespace deckforge
