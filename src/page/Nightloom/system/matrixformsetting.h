#pragma once

struct MatrixForm;

inline constexpr char kMatrixFormKey[] = "NightLoom/MatrixForm";

/// Takes the matrix form that was stored last; the first when there is none. Once, at the start.
void loadMatrixForm();

/// Makes a form the one that is used, and stores it; false when that failed, it is used all the same. No sender may be
/// at work.
[[nodiscard]] bool chooseMatrixForm(const MatrixForm &form);
