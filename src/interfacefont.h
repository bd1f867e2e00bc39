#pragma once

#include <QString>

class QFont;

/// Puts the fonts beside the common one, by its family, into an application font: before it the shapes that the tool's
/// language draws in its own way, after it the scripts that it has not. One that cannot be loaded is left out.
QFont interfaceFont(const QString &commonFamily);
