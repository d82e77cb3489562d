// The menus of favourites, rebuilt from the files in the program's directory, and what a click on
// their entries does.
#pragma once

#include <QString>
#include <functional>

class ButtonMenu;
class ComboBox;
class FileListBox;
class ListBox;
class QObject;

namespace modCycles {

// The keys of the entries that add and manage; a favourite has none.
inline constexpr QLatin1String kAddFavesKey("AddFaves");
inline constexpr QLatin1String kManageFavesKey("ManageFaves");

// Lists the files of all favourites there are at the moment.
void listFavourites(FileListBox& files);

// Whether a menu offers the favourite of this name.
using FavouriteFilter = std::function<bool(const QString&)>;

// Shows the favourites, those that the filter takes if there is one, behind the first
// `fixedEntries` entries of a menu. Without any favourite at all the menu stays as it is, the last
// one that was deleted in it.
void fillFavourites(ButtonMenu& menu, int fixedEntries, FileListBox& files,
                    const FavouriteFilter& isOffered = {});

// Gives the main window's menu the entries that stay: add, manage, and the separator behind them.
void startFavouritesMenu(ButtonMenu& menu);

// Rebuilds the main window's menu of favourites.
void FillFavouritesMenu();

// Makes the person who is chosen in the main window a favourite; nobody is chosen: nothing happens.
// Raises what writeFavourite raises.
void addFavourite();

// Selects a favourite in a list of people, which shows everybody for it: the text in the file
// decides, the number does not. Whoever is not in the list leaves it without a selection, and false
// is returned. Raises what readFavourite raises, before anything changes.
bool selectFavourite(const QString& name, ComboBox& filter, ListBox& people);

// The same, and tells the user over `owner` of whoever is not in the list.
void chooseFavourite(const QString& name, ComboBox& filter, ListBox& people, QObject* owner);

}  // namespace modCycles
