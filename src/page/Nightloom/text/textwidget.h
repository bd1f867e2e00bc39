#pragma once

#include <memory>

#include <QWidget>

#include "page/Nightloom/parts/frameplayer.h"
#include "page/Nightloom/render/textrenderer.h"
#include "page/Nightloom/work/workerthread.h"

class BoundTexts;
class MatrixEditor;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

/// Where a text for the accessory is written, with a preview of how it will go over the matrix.
class TextWidget : public QWidget
{
    Q_OBJECT
public:
    explicit TextWidget(BoundTexts &texts, QWidget *parent = nullptr);
    ~TextWidget() override;

    QLineEdit *input() const { return m_input; }
    /// What is said about how much of the text fits; empty when all of it does.
    QString fit() const;
    /// Null without a matrix form.
    MatrixEditor *preview() const { return m_preview; }
    FramePlayer &player() { return m_player; }

    QString text() const;
    TextMotion motion() const { return m_motion; }
    void setMotion(TextMotion motion);

    /// The glyph source of a text. Usable from any thread.
    static TextRenderer renderer(const MatrixForm *form, const QString &text, TextMotion motion)
    {
        return {form, text, motion};
    }

    /// Renders the text into frames, telling by the signals. False, with a log line, when there is no text.
    bool startJob();

    /// Gives up what is being rendered.
    void cancelJob();

    /// Plays the preview, or stops it.
    void togglePreview();

    void updateControlText();

Q_SIGNALS:
    /// Of the rendering, percent.
    void progress(int percent);
    void framesReady(const QByteArrayList &frames);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QWidget *buildMotions(BoundTexts &texts);
    void followMatrixForm();
    void onTextChanged();
    void showFit();
    void showFrame(int index);

    const MatrixForm *m_form = nullptr;
    TextMotion m_motion = TextMotion::Left;
    TextRenderer m_shown; ///< what the preview shows
    QLineEdit *m_input;
    QScrollArea *m_stage;
    QLabel *m_fit;
    MatrixEditor *m_preview = nullptr;
    std::vector<QPushButton *> m_motions;

    FramePlayer m_player;
    std::unique_ptr<WorkerThread> m_job; ///< the latest
};
