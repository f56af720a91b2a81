#pragma once

#include "editor/frmQDW.h"

#include <vector>

// The rows of the tables by which the window knows its controls, kinds and commands.

namespace deckforge {

/// A text box, or a list that takes any text, that carries its text to a field.
template <class Record>
struct frmQDW::TextField {
    QWidget* Control;
    QString Record::*Field;
    Guard When;
    Box* Preview; ///< whose caption follows; null for none
    Action After; ///< what else follows; null for nothing
};

/// A check box that carries its state to a field.
template <class Record>
struct frmQDW::CheckField {
    QCheckBox* Control;
    bool Record::*Field;
    Action After;
};

/// A number that carries its value to a field.
template <class Record>
struct frmQDW::CountField {
    QSpinBox* Control;
    int16 Record::*Field;
};

/// The buttons that choose and clear a picture from disk, with the box that shows its name.
template <class Record>
struct frmQDW::PictureField {
    QAbstractButton* Choose;
    QAbstractButton* Clear;
    const char* Title; ///< of the file dialog
    QString Record::*Field;
    Box* Target; ///< shows the picture; null for none
    QLineEdit* PathBox;
    Action After;
    Action AfterClear;
};

/// A colour with the button that chooses it.
template <class Record>
struct frmQDW::ColourField {
    QAbstractButton* Choose;
    ColourSwatch* Swatch; ///< a click on it chooses as well
    const char* Title;
    Colour& (*Field)(Record&);
    Box* Preview; ///< whose background follows; null for none
    Action After; ///< runs after a cancel too
};

/// All controls that carry a value to a record and do little else.
template <class Record>
struct frmQDW::Fields {
    std::vector<TextField<Record>> Texts;
    std::vector<CheckField<Record>> Checks;
    std::vector<CountField<Record>> Counts;
    std::vector<PictureField<Record>> Pictures;
    std::vector<ColourField<Record>> Colours;
};

/// The controls that step through the cards of a kind, add and delete them.
template <class Record>
struct frmQDW::Page {
    QScrollBar* Bar;
    QLabel* Position;
    QLabel* Dragged;                                  ///< tells of the card under the slider; null for none
    QString (*DraggedText)(const Record&);            ///< what it tells
    int16 (*DraggedIndex)(int slider, int16 current); ///< what the position tells meanwhile
    QAbstractButton* Add;
    QAbstractButton* Delete;
    QLineEdit* Name; ///< takes the next keys after a new card
    void (frmQDW::*Show)(int16);
};

/// What the commands do while a tab is selected.
struct frmQDW::Mode {
    CardKind Kind;
    void (frmQDW::*Show)(int16);
    void (*Save)(Workshop&, RunReport&, int16, Ask, Tell, SheetNumber);
    Action Add; ///< null for none, as for the next two
    Action Previous;
    Action Next;
    Action Copy;
    Action Paste;
    // What the runs over all cards go by: on the tab of card backs they work on the characters.
    void (*CreateAll)(Workshop&, RunReport&);
    void (*CreateSheets)(Workshop&, RunReport&, std::optional<SheetGrid>);
    Action CreateHtml;
    Action FillAgain; ///< after a run, which has shown other cards
};

/// A picture of the preview that the user places.
struct frmQDW::PlacementRow {
    const Box* Frame;
    const Box* Image;
    const Box* Handle; ///< null for none
    PlacedPicture Which;
    Action After; ///< tells the size of the frame
};

} // namespace deckforge
