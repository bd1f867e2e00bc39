#include "ledmatrix/memoryfile.h"

#include <algorithm>

#include <QFile>

#include "files/wholefile.h"
#include "ledmatrix/matrixform.h"

namespace {

QString fileOf(const AnimationMemory &memory)
{
    return QStringLiteral("./LEDMatrix%1.txt").arg(QLatin1String(memory.uploadLabel));
}

} // namespace

/// Whole frames only, so that the size tells the form. An old file goes first: should the new one find no room, it
/// would be taken for what the accessory has.
QString keepUploaded(const AnimationMemory &memory, const QString &fileName, const MatrixForm &form)
{
    forgetUploaded(memory);
    WholeFile sent = readWhole(fileName, kAnimationCap);
    if (!sent.error.isEmpty())
        return sent.error;
    QByteArray &digits = sent.bytes;
    digits.truncate(digits.size() / form.cells() * form.cells());
    std::transform(digits.cbegin(), digits.cend(), digits.begin(), [](char cell) { return cell == '1' ? '1' : '0'; });
    return digits.isEmpty() ? QString() : writeWhole(fileOf(memory), digits);
}

void forgetUploaded(const AnimationMemory &memory)
{
    QFile::remove(fileOf(memory));
}

KeptAnimation keptAnimation(const AnimationMemory &memory, const MatrixForm &form)
{
    const QByteArray digits = readWhole(fileOf(memory), kAnimationCap).bytes;
    if (digits.isEmpty())
        return {};
    if (digits.size() % form.cells() != 0)
        return {KeptAnimation::Kind::OfAnotherForm, {}};
    KeptAnimation kept{KeptAnimation::Kind::Frames, {}};
    for (qsizetype first = 0; first < digits.size(); first += form.cells())
        kept.frames.append(digits.sliced(first, form.cells()));
    return kept;
}
