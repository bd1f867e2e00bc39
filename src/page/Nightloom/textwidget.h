#pragma once

#include <memory>

#include <QWidget>

#include "page/Nightloom/frameplayer.h"
#include "page/Nightloom/textrenderer.h"
#include "page/Nightloom/workerthread.h"

class BoundTexts;
class MatrixEditor;
class QLineEdit;
class QPushButton;

/// Where a text for the accessory is written, with a preview of how it will go over the matrix.
class TextWidget : public QWidget
{
    Q_OBJECT
public:
    explicit TextWidget(BoundTexts &texts, QWidget *parent = nullptr);
    ~TextWidget() override;

    QLineEdit *input() const { return m_input; }
    MatrixEditor *preview() const { return m_preview; }
    FramePlayer &player() { return m_player; }

    QString text() const;
    TextMotion motion() const { return m_motion; }
    void setMotion(TextMotion motion);

    /// The glyph source of a text. Usable from any thread.
    TextRenderer renderer(const QString &text, TextMotion motion) const { return {m_form, text, motion}; }

    /// Renders the text into frames, telling by the signals. False, with a log line, when there is no text.
    bool startJob();

    /// Plays the preview, or stops it.
    void togglePreview();

    void updateControlText();

Q_SIGNALS:
    /// Of the rendering, percent.
    void progress(int percent);
    void framesReady(const QByteArrayList &frames);

private:
    void buildMotions(BoundTexts &texts, class QHBoxLayout *row);
    void onTextChanged();
    void showFrame(int index);

    const int m_form;
    TextMotion m_motion = TextMotion::Left;
    TextRenderer m_shown; ///< what the preview shows
    QLineEdit *m_input;
    MatrixEditor *m_preview;
    std::vector<QPushButton *> m_motions;
    FramePlayer m_player;
    std::unique_ptr<WorkerThread> m_job; ///< the latest
};
