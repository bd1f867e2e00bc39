#pragma once

#include "ledmatrix/matrixframe.h"

/// Events of a game that the matrix celebrates, in the order in which the accessory counts them.
enum class GameEvent { Kill, DoubleKill, TripleKill, Assist, Headshot, LowHealth, Victory, Defeat };
inline constexpr int kGameEvents = 8;

/// A picture of an event, in the middle of a form as far as its rows are wide enough.
MatrixFrame eventPicture(const MatrixForm &form, GameEvent event);
