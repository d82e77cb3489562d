// Room for the longest of several texts.
#pragma once

class QLabel;
class QString;

// Makes the label as high, from now on, as the text is in lines of that width, in pixels: so it
// moves nothing below it when it shows less.
void reserveRoom(QLabel& label, const QString& text, int width);
