#pragma once

#include <QFont>

/// The interface language in one word: 1 English, 0 any other. Written by the language switch.
extern int languageWord;

/// The two fonts that pages share: for titles, and for notes under them. Sized once at start-up.
extern QFont titleFont;
extern QFont noteFont;

/// Takes the application font and sets the two sizes: 21 pixels, and 13 (English) or 14.
void setUpSharedFonts();
