#include "controls/sharedfonts.h"

#include <QGuiApplication>

int languageWord = 0;
QFont titleFont;
QFont noteFont;

void setUpSharedFonts()
{
    titleFont = QGuiApplication::font();
    titleFont.setPixelSize(21);
    noteFont = QGuiApplication::font();
    noteFont.setPixelSize(languageWord == 1 ? 13 : 14); // English texts are the longest
}
