#pragma once

#include <vector>

#include <QKeySequence>
#include <QString>

/// The keys of one function, as its row on the page and its group in the settings file hold them.
struct ShortcutEntry
{
    int function = 0; ///< its number, which names the group
    bool isOn = true;
    QString plusKey; ///< combinations in native text, empty for none
    QString minusKey;
    bool operator==(const ShortcutEntry &) const = default;
};

/// Everything that is stored of the hot keys.
struct ShortcutList
{
    bool masterOn = true;
    std::vector<ShortcutEntry> entries;
    bool operator==(const ShortcutList &) const = default;
};

/// The list of "basicMode.ini". Groups that are no function's number and functions without a switch are left out.
ShortcutList loadShortcuts();

/// Writes the whole list in one step. False when the file could not be written; then it holds the old list.
bool saveShortcuts(const ShortcutList &list);

/// The first combination of a stored text; empty when the text is none, or names a key that does not exist.
QKeySequence keySequenceOf(const QString &text);
