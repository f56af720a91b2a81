#pragma once

#include "compose/Workshop.h"

namespace deckforge {

// Image files of composed cards.

/// Where an image goes: the folder with its separator, and the bare name with its extension.
struct ImagePath {
    QString Folder;
    QString Name;

    [[nodiscard]] QString Full() const { return Folder + Name; }
};

/// The full path to write, with the blanks of the name as underlines where the set wants that; those of the
/// folder stay. A name that holds a separator is error 52: a set from a stranger cannot write outside its
/// folder.
[[nodiscard]] QString FixFileName(const ImagePath& path, bool replaceSpace);

enum class Ask { No, Yes };
enum class Tell { No, Yes };

/// Names the composed standard card of the index, asks where wanted, and writes its image. A card without a
/// file name is asked for where the result is told; elsewhere it takes its title. A cancel ends it with
/// nothing changed.
void SaveCard(Workshop& workshop, int16 index, Ask ask, Tell tell);

/// Builds the picture of the composed standard card, with its back unless the set goes without, and writes it
/// in the set's format. A failure is told in a box; the caller goes on.
void WriteCard(Workshop& workshop, const ImagePath& path);

/// Writes the images of all standard cards without a question, and tells how many they are.
void CreateCards(Workshop& workshop);

} // namespace deckforge
