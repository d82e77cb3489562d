// The main window's controls that are the application's shared state.
#pragma once

#include "cycles/integers.h"

class ButtonMenu;
class Chart;
class ComboBox;
class FileListBox;
class ListBox;
class MonthView;
class PictureButton;
class QLabel;
class StatusBar;

// Every form reads the chosen person and date from here, and the routines of the main lists and the
// main chart work on it. The main window puts its controls in force while it lives.
struct MainControls {
    ListBox* lstMain;
    ComboBox* cbCategory;
    ListBox* listCats;
    MonthView* dtpSelDate;
    QLabel* lblTitle;
    Chart* chtMain;
    StatusBar* sbMain;
    ButtonMenu* mnuFaves;  // the drop-down menu of the button "Faves"
    FileListBox* flFavePerson;
    PictureButton* cmdDetails;
};

// The controls of the main window there is. There must be one.
const MainControls& mainControls();

// The NameID of the person who is chosen in the main window. Raises 381 if nobody is.
Long chosenNameId();

// For the main window alone: the controls in force, or nullptr when it goes.
void setMainControls(const MainControls* controls);
