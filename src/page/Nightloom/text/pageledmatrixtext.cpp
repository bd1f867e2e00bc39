#include "page/Nightloom/text/pageledmatrixtext.h"

#include <utility>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "controls/sharedfonts.h"
#include "controls/sliderwidget.h"
#include "ledmatrix/animationfile.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/Nightloom/text/textwidget.h"
#include "page/Nightloom/work/ledworkthread.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"
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
    : QLabel(parent), m_ensureConnected(std::move(ensureConnected)), m_text(new TextWidget(m_texts, this)),
      m_work(new WorkPanel(m_texts, this))
{
    buildForm();
    connectWork();
}

void pageLEDMatrixText::buildForm()
{
    setObjectName(QStringLiteral("pageLEDMatrixText"));
    dressPage(this);
    auto *title = new QLabel(this);
    title->setObjectName(QStringLiteral("title"));
    title->setFont(titleFont);
    m_texts.bind(LABEL("Text Mode"), [title](const QString &text) { title->setText(text); });
    auto *column = new QVBoxLayout;
    column->setSpacing(16);
    column->addWidget(title);
    column->addWidget(m_text, 1);
    layOutWithTools(this, column, buildTools());
}

QWidget *pageLEDMatrixText::buildTools()
{
    auto *side = new QWidget(this);
    m_tools = new QWidget(side);
    QVBoxLayout *column = makeToolColumn(m_tools);
    buildPreviewTools(column);
    column->addWidget(makeToolLine(m_tools));
    m_save = makeToolButton(LABEL("Save Data"), m_texts, m_tools);
    connect(m_save, &QPushButton::clicked, this, &pageLEDMatrixText::saveData);
    column->addWidget(m_save);

    auto *all = new QVBoxLayout(side);
    all->setContentsMargins(0, 4, 0, 0);
    all->setSpacing(16);
    all->addWidget(m_tools);
    all->addWidget(m_work);
    all->addStretch(1);
    return side;
}

void pageLEDMatrixText::buildPreviewTools(QVBoxLayout *column)
{
    QPushButton *preview = makeToolButton(LABEL("Preview"), m_texts, m_tools);
    preview->setCheckable(true);
    SliderWidget *speed = makeSpeedSlider(m_text->player(), m_texts, m_tools);
    connect(preview, &QPushButton::clicked, m_text, &TextWidget::togglePreview);
    connect(&m_text->player(), &FramePlayer::playingChanged, preview, &QPushButton::setChecked);
    connect(preview, &QPushButton::clicked, this,
            [this, preview] { preview->setChecked(m_text->player().isPlaying()); });
    column->addWidget(preview);
    column->addWidget(speed);
}

void pageLEDMatrixText::connectWork()
{
    m_work->block({m_tools, m_text});
    connect(m_work, &WorkPanel::begins, this, &pageLEDMatrixText::busyBegins);
    connect(m_work, &WorkPanel::cancelled, this, &pageLEDMatrixText::cancelWork);
    connect(m_work, &WorkPanel::ended, this, &pageLEDMatrixText::busyEnded);
    connect(m_text, &TextWidget::progress, this, [this](int value) {
        if (isBusy() && !m_uploads)
            m_work->showProgress(value);
    });
    connect(m_text, &TextWidget::framesReady, this, &pageLEDMatrixText::onFrames);
    connect(ledWorkThread::instance(), &ledWorkThread::progress, this, &pageLEDMatrixText::onUploadProgress);
    connect(ledWorkThread::instance(), &ledWorkThread::uploadEnded, this, &pageLEDMatrixText::onUploadEnded);
    connect(m_text->input(), &QLineEdit::textChanged, this, [this] { m_work->showNotice({}); });
}

void pageLEDMatrixText::updateControlText()
{
    m_texts.retranslate();
    m_text->updateControlText();
}

void pageLEDMatrixText::saveData()
{
    if (isBusy() || !m_ensureConnected())
        return;
    m_text->player().stop();
    if (m_text->startJob())
        m_work->begin({std::begin(kSteps), std::end(kSteps)});
    else
        m_work->showNotice(QObject::tr("There is no text yet."));
}

void pageLEDMatrixText::onFrames(const QByteArrayList &frames)
{
    if (!isBusy() || m_uploads)
        return; // cancelled when they were on their way
    const QString fileName = QLatin1String(ledWorkThread::kTextFile);
    const QString error = writeAnimation(fileName, frames, [](int) { return true; });
    if (!error.isEmpty()) {
        m_work->fail(QObject::tr("The file cannot be written: %1").arg(error));
        return m_work->end(false);
    }
    m_uploads = true;
    ledWorkThread::instance()->begin(ledWorkThread::UploadText);
}

void pageLEDMatrixText::onUploadProgress(int value)
{
    if (!m_uploads)
        return;
    if (value == kProgressFailed)
        m_work->fail(QObject::tr("The file cannot be read: %1").arg(QLatin1String(ledWorkThread::kTextFile)));
    else
        m_work->showProgress(value);
}

/// The progress may have ended at 100 even so, or not at all.
void pageLEDMatrixText::onUploadEnded(bool complete)
{
    if (!std::exchange(m_uploads, false))
        return;
    if (!complete && !m_work->hasFailed())
        m_work->showNotice(QObject::tr("The accessory did not take everything."));
    m_work->end(complete);
}

/// Before the upload the work ends here; then the upload tells when it has ended.
void pageLEDMatrixText::cancelWork()
{
    if (m_uploads)
        return stopUploads();
    m_text->cancelJob();
    m_work->showNotice(QObject::tr("Cancelled. Nothing was changed."));
    m_work->end(false);
}
