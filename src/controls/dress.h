#pragma once

#include <QString>

class QDialog;
class QMenu;

/// Gives the toolkit's own surfaces (menus, lists, dialogs, tool tips) the program's colours. Once, before the first
/// widget: a palette is handed down for nothing, while a style sheet of the whole application would be asked of every
/// widget again and again.
void dressApplication();

/// What a style sheet of a part of the window says of menus and tool tips in it.
QString surfaceStyle();

/// Gives a menu outside of the pages the same look.
void dressMenu(QMenu *menu);

/// Gives the controls in one of the toolkit's own dialogs edges that can be seen.
void dressDialog(QDialog *dialog);
