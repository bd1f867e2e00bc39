#pragma once

class QPushButton;
class QString;

/// The part of the pages' style sheet by which buttons are drawn from pictures. A sheet for each of hundreds of buttons
/// would be dear.
QString optionStyle();

/// Has a button on a page drawn from pictures, one for each state, "img/option/<pictures>_<state>.png".
void dressByPictures(QPushButton *button, const char *pictures);

/// Gives a button the pictures of an option button, as small as its text allows.
void dressOptionButton(QPushButton *button);
