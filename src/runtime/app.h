// The program itself: its name, version, directory and instances.
#pragma once

#include <QString>

namespace App {

QString Title();
int Major();
int Minor();
int Revision();

// The directory of the program, without a separator at its end.
QString Path();

// Whether another instance of the program runs.
bool PrevInstance();

}  // namespace App
