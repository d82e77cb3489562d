// The filling of the menus, and the two ways between a list of people and the favourites.
#include "shell/favourites_menu.h"

#include "controls/button_menu.h"
#include "controls/combo_box.h"
#include "controls/file_list_box.h"
#include "controls/list_box.h"
#include "runtime/app.h"
#include "runtime/host.h"
#include "shell/main_controls.h"
#include "store/favourites.h"
#include "store/list_fillers.h"

namespace modCycles {

namespace {

constexpr int kFixedEntries = 3;

}  // namespace

void listFavourites(FileListBox& files) {
    files.setPath(App::Path());
    files.setPattern(favouritePattern());
    files.Refresh();
}

void fillFavourites(ButtonMenu& menu, int fixedEntries, FileListBox& files,
                    const FavouriteFilter& isOffered) {
    listFavourites(files);
    if (files.ListCount() == 0)
        return;
    while (menu.Count() > fixedEntries)
        menu.Remove(menu.Count());
    for (int i = 0; i < files.ListCount(); ++i) {
        const QString favourite = favouriteIn(files.List(i));
        if (!isOffered || isOffered(favourite))
            menu.Add({}, favourite);
    }
}

void startFavouritesMenu(ButtonMenu& menu) {
    menu.Add(kAddFavesKey, QStringLiteral("Add to Favourites"));
    menu.Add(kManageFavesKey, QStringLiteral("Manage Favourites"));
    menu.Add(QStringLiteral("sep"), QStringLiteral("-"));
}

void FillFavouritesMenu() {
    fillFavourites(*mainControls().mnuFaves, kFixedEntries, *mainControls().flFavePerson);
}

void addFavourite() {
    const ListBox& people = *mainControls().lstMain;
    if (people.ListIndex() == -1)
        return;
    writeFavourite({chosenNameId(), people.Text()});
    FillFavouritesMenu();
}

bool selectFavourite(const QString& name, ComboBox& filter, ListBox& people) {
    const PersonRecord favourite = readFavourite(name);
    filter.setListIndex(kEverybody);
    people.setText(favourite.displayText);
    return people.ListIndex() != -1;
}

void chooseFavourite(const QString& name, ComboBox& filter, ListBox& people, QObject* owner) {
    if (!selectFavourite(name, filter, people))
        host().showMessage(
            {.text = QStringLiteral("This person appears to have been removed from the database. "
                                    "Please update your favourites."),
             .owner = owner});
}

}  // namespace modCycles
