#include "page/Nightloom/text/pageledmatrixtext.h"

#include <utility>

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/sliderwidget.h"
#include "ledmatrix/animationfile.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/Nightloom/text/textwidget.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/engine/labels.h"
#include "usb-hid/accessoryupload.h"

namespace {

/// The device erases its memory before it takes the text. How much that is nobody knows before the text is rendered.
constexpr WorkStep kSteps[] = {
    {LABEL("Rendering"), 0, kProgressEnd, platform::milliseconds(500)},
    {LABEL("Erase"), 0, kProgressEnd, kTextWaits},
    {LABEL("Write Data"), 0, kProgressEnd, platform::milliseconds(2000)},
};

} // namespace

pageLEDMatrixText::pageLEDMatrixText(AccessoryCheck ensureConnected, QWidget *parent)
    : LongWorkPage(QStringLiteral("pageLEDMatrixText"), LABEL("Text Mode"),
                   LABEL("A line of text that the matrix shows, standing or scrolling."), std::move(ensureConnected),
                   parent),
      m_text(new TextWidget(texts(), this))
{
    layOut(m_text);
    connectWork();
}

void pageLEDMatrixText::buildTools(QVBoxLayout *column, QWidget *tools)
{
    buildPreviewTools(column, tools);
    column->addWidget(makeToolLine(tools));
    m_save = makeToolButton(LABEL("Save Data"), texts(), tools);
    connect(m_save, &QPushButton::clicked, this, &pageLEDMatrixText::saveData);
    column->addWidget(m_save);
}

void pageLEDMatrixText::buildPreviewTools(QVBoxLayout *column, QWidget *tools)
{
    QPushButton *preview = makeToolButton(LABEL("Preview"), texts(), tools);
    preview->setCheckable(true);
    SliderWidget *speed = makeSpeedSlider(m_text->player(), texts(), tools);
    connect(preview, &QPushButton::clicked, m_text, &TextWidget::togglePreview);
    connect(&m_text->player(), &FramePlayer::playingChanged, preview, &QPushButton::setChecked);
    connect(preview, &QPushButton::clicked, this,
            [this, preview] { preview->setChecked(m_text->player().isPlaying()); });
    column->addWidget(preview);
    column->addWidget(speed);
}

void pageLEDMatrixText::connectWork()
{
    connect(m_text, &TextWidget::progress, this, [this](int value) {
        if (isBusy() && !m_uploads)
            work()->showProgress(value);
    });
    connect(m_text, &TextWidget::framesReady, this, &pageLEDMatrixText::onFrames);
    connect(ledWorkThread::instance(), &ledWorkThread::progress, this, &pageLEDMatrixText::onUploadProgress);
    connect(ledWorkThread::instance(), &ledWorkThread::uploadEnded, this, &pageLEDMatrixText::onUploadEnded);
    connect(m_text->input(), &QLineEdit::textChanged, this, [this] { work()->showNotice({}); });
}

void pageLEDMatrixText::updateControlText()
{
    LongWorkPage::updateControlText();
    m_text->updateControlText();
}

void pageLEDMatrixText::saveData()
{
    if (isBusy() || !ensureConnected())
        return;
    m_text->player().stop();
    if (m_text->startJob())
        work()->begin({std::begin(kSteps), std::end(kSteps)});
    else
        work()->showNotice(QObject::tr("There is no text yet."));
}

void pageLEDMatrixText::onFrames(const QByteArrayList &frames)
{
    if (!isBusy() || m_uploads)
        return; // cancelled when they were on their way
    const QString fileName = QLatin1String(ledWorkThread::kTextFile);
    const QString error = writeAnimation(fileName, frames, [](int) { return true; });
    if (!error.isEmpty()) {
        work()->fail(QObject::tr("The file cannot be written: %1").arg(error));
        return work()->end(false);
    }
    m_uploads = true;
    ledWorkThread::instance()->begin(ledWorkThread::UploadText);
}

void pageLEDMatrixText::onUploadProgress(int value)
{
    if (!m_uploads)
        return;
    if (value == kProgressFailed)
        work()->fail(QObject::tr("The file cannot be read: %1").arg(QLatin1String(ledWorkThread::kTextFile)));
    else
        work()->showProgress(value);
}

/// The progress may have ended at 100 even so, or not at all.
void pageLEDMatrixText::onUploadEnded(bool complete)
{
    if (std::exchange(m_uploads, false))
        work()->endUpload(complete);
}

/// Before the upload the work ends here; then the upload tells when it has ended.
void pageLEDMatrixText::cancelWork()
{
    if (m_uploads)
        return stopUploads();
    m_text->cancelJob();
    work()->tellCancelled();
    work()->end(false);
}
