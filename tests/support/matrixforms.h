#pragma once

#include "usb-hid/accessorylink.h"

inline const MatrixForm &kTapering = *findMatrixForm(0);
inline const MatrixForm &kRectangle = *findMatrixForm(1);

/// Makes a form the one that is used; none for a number that no form has.
inline void useForm(int number)
{
    accessoryLink.form = findMatrixForm(number);
}
