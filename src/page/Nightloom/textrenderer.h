#pragma once

#include <QImage>
#include <QString>

#include "ledmatrix/matrixframe.h"

/// How a text goes over the matrix.
enum class TextMotion : std::int32_t { Left, Right, Standing };

/// Renders a text into frames of the matrix. The text is drawn once, finer than the matrix is, and each frame is a
/// window onto it. Usable from any thread.
class TextRenderer
{
public:
    /// Frames that a text may take on the accessory.
    static constexpr int kMaximumFrames = 822;

    TextRenderer(int form, const QString &text, TextMotion motion);

    /// 0 for an empty text or a number that is no form. A scrolling text that is too long for the frames there are goes
    /// over the matrix in longer steps; a standing one that is too wide is shown piece by piece.
    int frameCount() const { return m_frames; }

    /// A frame, 0 to frameCount() - 1.
    MatrixFrame frame(int index) const;

    /// The frame that shows most of the text: where it stands, or has just come in.
    int fullestFrame() const;

private:
    void drawStrip(const QString &text);
    void countFrames();
    int windowOf(int index) const;

    int m_form;
    TextMotion m_motion;
    int m_columns;
    QImage m_strip; ///< two pixels a cell either way
    int m_width = 0;
    int m_step = 1;
    int m_frames = 0;
};
