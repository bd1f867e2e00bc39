#include "page/Nightloom/pageledmatrixtext.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "controls/sharedfonts.h"
#include "controls/sliderwidget.h"
#include "ledmatrix/animationfile.h"
#include "page/Nightloom/ledworkthread.h"
#include "page/Nightloom/textwidget.h"
#include "page/Nightloom/toolcolumn.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"
#include "usb-hid/accessoryupload.h"

namespace {

/// What each phase is called beside the progress bar.
constexpr const char *kPhaseLabels[] = {"", LABEL("Rendering"), LABEL("Erase"), LABEL("Write Data")};

} // namespace

pageLEDMatrixText::pageLEDMatrixText(AccessoryCheck ensureConnected, QWidget *parent)
    : QLabel(parent), m_ensureConnected(std::move(ensureConnected)), m_text(new TextWidget(m_texts, this)),
      m_phaseLabel(new QLabel(this)), m_notice(new QLabel(this)), m_progress(new QProgressBar(this))
{
    buildForm();
    connectWork();
    enter(Phase::Idle);
    showNotice({});
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

    m_phaseLabel->setObjectName(QStringLiteral("note"));
    m_phaseLabel->setFont(noteFont);
    dressProgressBar(m_progress, m_texts);
    m_notice->setObjectName(QStringLiteral("notice"));
    m_notice->setFont(noteFont);
    m_notice->setWordWrap(true);
    m_notice->setTextFormat(Qt::PlainText);
    auto *all = new QVBoxLayout(side);
    all->setContentsMargins(0, 4, 0, 0);
    all->setSpacing(16);
    all->addWidget(m_tools);
    all->addWidget(m_progress);
    all->addWidget(m_phaseLabel);
    all->addWidget(m_notice);
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
    connect(m_text, &TextWidget::progress, this, [this](int value) {
        if (m_phase == Phase::Rendering)
            showProgress(value);
    });
    connect(m_text, &TextWidget::framesReady, this, &pageLEDMatrixText::onFrames);
    connect(ledWorkThread::instance(), &ledWorkThread::progress, this, &pageLEDMatrixText::onUploadProgress);
    connect(ledWorkThread::instance(), &ledWorkThread::uploadEnded, this, [this](bool complete) {
        if (!complete && m_notice->text().isEmpty()) // the progress ends at 100 even so
            showNotice(QObject::tr("The accessory did not take everything."));
    });
    connect(m_text->input(), &QLineEdit::textChanged, this, [this] { showNotice({}); });
}

void pageLEDMatrixText::updateControlText()
{
    m_texts.retranslate();
    m_text->updateControlText();
    enter(m_phase);
}

void pageLEDMatrixText::saveData()
{
    if (isBusy() || !m_ensureConnected())
        return;
    m_text->player().stop();
    if (!m_text->startJob())
        return showNotice(QObject::tr("There is no text yet."));
    showNotice({});
    showProgress(0);
    enter(Phase::Rendering);
    m_focusBefore = window()->focusWidget();
    m_tools->setEnabled(false);
    m_text->setEnabled(false);
    Q_EMIT busyBegins();
}

void pageLEDMatrixText::onFrames(const QByteArrayList &frames)
{
    const QString fileName = QLatin1String(ledWorkThread::kTextFile);
    const QString error = writeAnimation(fileName, frames, [](int) {});
    if (!error.isEmpty()) {
        const QString text = QObject::tr("The file cannot be written: %1");
        return fail(text.arg(error));
    }
    enter(Phase::Erasing);
    ledWorkThread::instance()->begin(ledWorkThread::UploadText);
}

void pageLEDMatrixText::onUploadProgress(int value)
{
    if (m_phase != Phase::Erasing && m_phase != Phase::Writing)
        return;
    if (value == kProgressFailed) {
        const QString text = QObject::tr("The file cannot be read: %1");
        return fail(text.arg(QLatin1String(ledWorkThread::kTextFile)));
    }
    showProgress(value);
    if (value != kProgressEnd)
        return;
    if (m_phase == Phase::Erasing)
        enter(Phase::Writing);
    else
        endWork();
}

void pageLEDMatrixText::enter(Phase phase)
{
    m_phase = phase;
    const char *label = kPhaseLabels[static_cast<int>(phase)];
    m_phaseLabel->setText(*label ? QObject::tr(label) : QString());
    m_phaseLabel->setVisible(*label);
}

void pageLEDMatrixText::endWork()
{
    enter(Phase::Idle);
    m_tools->setEnabled(true);
    m_text->setEnabled(true);
    giveFocusBack(m_focusBefore);
    Q_EMIT busyEnded();
}

void pageLEDMatrixText::fail(const QString &text)
{
    showProgress(kProgressFailed);
    showNotice(text);
    endWork();
}

void pageLEDMatrixText::showProgress(int value)
{
    showValue(m_progress, value);
}

void pageLEDMatrixText::showNotice(const QString &text)
{
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
}
