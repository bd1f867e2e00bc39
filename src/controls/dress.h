#pragma once

#include <QRgb>

class QDialog;
class QWidget;

/// Gives the toolkit's own surfaces (menus, lists, dialogs, tool tips) the program's colours. Once, before the first
/// widget: a palette is handed down for nothing, while a style sheet of the whole application would be asked of every
/// widget again and again.
void dressApplication();

/// Gives the controls in one of the toolkit's own dialogs edges that can be seen.
void dressDialog(QDialog *dialog);

/// Lets a question hold up the window that it belongs to, and not what the program shows on the desktop beside it; one
/// without a window holds up all of them. To be called before it is shown.
void holdUpItsWindow(QDialog *question);

/// How the text of a label looks.
struct TextLook
{
    QRgb colour;
    int pixels = 0;    ///< the height of its letters; 0 leaves its font as it is
    QRgb disabled = 0; ///< its colour while it cannot be used; 0 is the same
};

/// Gives a label its look. A style sheet that says no more than that would take some 10 kB for each.
void dressText(QWidget *label, const TextLook &look);
