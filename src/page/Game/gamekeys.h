#pragma once

#include <QString>

/// Which of the user's keys do what a panel of the game aids does, by its source label: rich text in the language of
/// now, a key and what it does a line each; empty when there is none, or the keys are switched off.
QString gameKeys(const char *panel);
