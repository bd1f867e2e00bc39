#pragma once

#include <QImage>
#include <QString>

#include "ledmatrix/matrixframe.h"

class QPainter;
class QTextLine;

/// How a text goes over the matrix.
enum class TextMotion : std::int32_t { Left, Right, Standing };

/// Renders a text into frames of the matrix. The text is drawn once, finer than the matrix is, and each frame is a
/// window onto it. Usable from any thread.
///
/// A standing text that is too wide is shown piece by piece, broken between words or, where a word alone is too wide,
/// between letters. The longer a text, the shorter each piece stays, and the longer the steps of a scrolling one are;
/// what cannot be read any more then is left out.
class TextRenderer
{
public:
    /// Frames of a form that the accessory keeps of a text.
    static int frameLimit(const MatrixForm &form);

    /// The form may be null: then there is nothing to render.
    TextRenderer(const MatrixForm *form, const QString &text, TextMotion motion);

    /// 0 for an empty text or without a form.
    int frameCount() const { return m_frames; }

    /// How many letters the text has, as its reader counts them, and how many of them, from the first, are shown.
    int letters() const { return m_letters; }
    int lettersShown() const { return m_lettersShown; }

    /// A frame, 0 to frameCount() - 1.
    MatrixFrame frame(int index) const;

    /// The frame that shows most of the text: where it stands, or has just come in.
    int fullestFrame() const;

private:
    void layOut(const QString &text);
    void drawLine(QPainter &painter, const QTextLine &line, int left, int width) const;
    void countFrames(int pieces);
    int windowOf(int index) const;

    const MatrixForm *m_form;
    TextMotion m_motion;
    int m_columns;
    QImage m_strip;  ///< two pixels a cell either way
    int m_width = 0; ///< of a scrolling text, cells
    int m_step = 1;  ///< cells
    int m_hold = 1;  ///< frames
    int m_frames = 0;
    int m_letters = 0;
    int m_lettersShown = 0;
};
