// What belongs to the screen and to no window.
#pragma once

// Gives the mouse the pointer of whatever it is over again, where one was set for all windows.
void resetMousePointer();
