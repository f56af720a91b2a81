#pragma once

class QString;
class QWidget;

namespace deckforge {

struct Workshop;
class UserPort;

/// Lets the user add card backs and card types to the set, and choose what a new card takes, in a dialog over
/// the window. What is changed is in the set at once; the caller fills its lists again.
///
/// The file that was chosen last for a back is where the next choice starts.
void EditSetInfo(Workshop& workshop, UserPort& user, QString& lastBackFile, QWidget* window);

} // namespace deckforge
