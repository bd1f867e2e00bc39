#pragma once

class QDialog;

/// Gives the toolkit's own surfaces (menus, lists, dialogs, tool tips) the program's colours. Once, before the first
/// widget: a palette is handed down for nothing, while a style sheet of the whole application would be asked of every
/// widget again and again.
void dressApplication();

/// Gives the controls in one of the toolkit's own dialogs edges that can be seen.
void dressDialog(QDialog *dialog);
