#pragma once

#include <QByteArrayList>
#include <QString>

#include "ledmatrix/devicememory.h"

struct MatrixForm;

// What was uploaded into each memory of the accessory last, which does not tell what it has: a file a memory, of whole
// frames of one form. A sender thread may call any of these.

/// Keeps what an upload of a file has sent, in place of what was kept. The error's text; empty when it is kept.
QString keepUploaded(const AnimationMemory &memory, const QString &fileName, const MatrixForm &form);

/// The memory holds something else by now.
void forgetUploaded(const AnimationMemory &memory);

/// What is kept of a memory.
struct KeptAnimation
{
    enum class Kind { Nothing, Frames, OfAnotherForm };

    Kind kind = Kind::Nothing;
    QByteArrayList frames; ///< digits
};

/// Reads it, for a form.
KeptAnimation keptAnimation(const AnimationMemory &memory, const MatrixForm &form);
