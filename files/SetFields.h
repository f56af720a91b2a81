// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "core/CardSet.h"
#include "files/SetFileFormat.h"

#include <concepts>

namespace deckforge::setFile {

// The fields of each section in file order, one line of code per line of the file, for reader and writer. A
// field that older files lack has the version that added it, and its value for older files if that is not
// empty.
//
// File is SetReader or SetWriter, for which the record is const.

/// The number of new cards in files without one.
inline constexpr int16 DefaultLastNumber = 2;

template <class File, std::derived_from<FontSpec> Record>
void Fields(File& file, Record& font)
{
    file.Text(font.Name);
    file.Real(font.Size);
    file.Boolean(font.Bold);
    file.Boolean(font.Italic);
    file.Integer(font.Color);
}

template <class File, std::derived_from<SetHeader> Record>
void Fields(File& file, Record& header)
{
    file.Text(header.SetName);
    file.Path(header.FileName);
    file.Path(header.SaveTo);
    file.Boolean(header.Autonumber);
    file.Path(header.Symbol);
    file.Text(header.FilenamePrefix);
    file.Boolean(header.FileNr);
    file.Boolean(header.NoBack);
    file.Integer(header.SaveFormat, Since{2});
    file.Boolean(header.ReplaceSpace, Since{5});
    file.Integer(header.ArtistColor, Since{8}, LightGrey);
    // Kept: fonts that an old file lacks are those of the set that was open before.
    const std::size_t fontCount = file.Has(Since{9}) ? Fonts.size() : FontCountBefore9;
    for (std::size_t i = 0; i < fontCount; ++i)
        Fields(file, header.*Fonts[i]);
}

template <class File, std::derived_from<CardType> Record>
void Fields(File& file, Record& type)
{
    file.Text(type.Name);
    file.Text(type.SubName, Since{6});
    file.Text(type.ReversedName);
    file.Text(type.ReversedSubName, Since{6});
    file.Integer(type.Number);
    file.Boolean(type.BuiltIn);
}

template <class File, std::derived_from<CardBack> Record>
void Fields(File& file, Record& back)
{
    file.Text(back.Name);
    file.Path(back.Picture);
    file.Boolean(back.BuiltIn);
}

template <class File, std::derived_from<NewCardBack> Record>
void Fields(File& file, Record& back)
{
    file.Text(back.BackText);
    file.Text(back.Filename);
    file.Integer(back.FrameColor);
    file.Integer(back.InnerColor);
    file.Text(back.Name);
    file.Integer(back.BackColor);
    file.Path(back.Picture);
    file.Boolean(back.UsePicture);
    Fields(file, back.Font);
}

template <class File, std::derived_from<Card> Record>
void Fields(File& file, Record& card)
{
    file.Text(card.Title);
    file.Integer(card.Copies, Since{3}, 1);
    file.Text(card.Type);
    file.Text(card.SubType, Since{6});
    file.Text(card.TypeReversed, Since{2}, card.Type);
    file.Text(card.SubTypeReversed, Since{6});
    file.Boolean(card.OneLine, Since{2});
    file.Integer(card.TypeIndex);
    file.Text(card.Number);
    file.Boolean(card.ShowPicture);
    file.Path(card.Picture);
    file.Real(card.PictureTop);
    file.Integer(card.FrameHeight);
    file.Real(card.PictureLeft);
    file.Boolean(card.Frame);
    file.Boolean(card.Resize);
    file.Text(card.Artist, Since{8});
    file.Text(card.BoldText);
    file.Flattened(card.Info);
    file.Path(card.Background);
    file.Integer(card.CardBack);
    file.Integer(card.Color);
    file.Text(card.Filename);
}

template <class File, std::derived_from<LargeCard> Record>
void Fields(File& file, Record& card)
{
    file.Text(card.Title);
    file.Integer(card.Copies);
    file.Boolean(card.ShowPicture);
    file.Path(card.Picture);
    file.Real(card.PictureTop);
    file.Real(card.PictureLeft);
    file.Integer(card.FrameHeight);
    file.Boolean(card.Frame);
    file.Boolean(card.Resize);
    file.Flattened(card.Info);
    file.Path(card.Background);
    file.Path(card.CardBack);
    file.Integer(card.Color);
    file.Text(card.Filename);
}

template <class File, std::derived_from<Character> Record>
void Fields(File& file, Record& character)
{
    file.Text(character.Name);
    file.Flattened(character.SpecialAbilities);
    file.Text(character.Alignment);
    file.Path(character.Background);
    file.Text(character.Craft);
    file.Text(character.Filename);
    file.Text(character.Gold);
    file.Text(character.Lives);
    file.Real(character.PictureLeft);
    file.Real(character.PictureTop);
    file.Path(character.Picture);
    file.Integer(character.FrameHeight);
    file.Text(character.StartArea);
    file.Text(character.Strength);
    file.Boolean(character.Frame);
    file.Boolean(character.ShowPicture);
    file.Integer(character.CardBack);
    file.Path(character.CardBackPicture);
    file.Path(character.PlayingPiece);
    file.Real(character.PlayingPieceLeft);
    file.Real(character.PlayingPieceTop);
}

template <class File, std::derived_from<NewCardValues> Record>
void Fields(File& file, Record& values)
{
    file.Integer(values.LastCardBack);
    file.Text(values.LastType);
    file.Text(values.LastTypeReversed, Since{2}, values.LastType);
    file.Text(values.LastSubType, Since{7});
    file.Text(values.LastSubTypeReversed, Since{7});
    file.Integer(values.LastNumber, Since{2}, DefaultLastNumber);
    file.Path(values.LastBackground);
}

} // namespace deckforge::setFile
