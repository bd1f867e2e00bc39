#pragma once

class QPushButton;
class QString;

/// The style sheet of a button that is drawn from pictures: a state each of "img/option/<pictures>_<state>.png".
QString optionStyle(const char *pictures);

/// Gives a button the pictures of an option button, as small as its text allows.
void dressOptionButton(QPushButton *button);
