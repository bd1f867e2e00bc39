#pragma once

#include "page/Nightloom/parts/matrixeditor.h"

inline QPoint middle(const MatrixEditor &editor, MatrixCell cell)
{
    return editor.geometry().cellRect(cell).center();
}

inline int litCells(const MatrixEditor &editor)
{
    return static_cast<int>(editor.frame().digits().count('1'));
}
