#include "page/Nightloom/text/textwidget.h"

#include <QButtonGroup>
#include <QDebug>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>

#include "controls/accessiblecontrol.h"
#include "controls/dress.h"
#include "controls/focusgroup.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/sharedfonts.h"
#include "controls/wrappedlabel.h"
#include "page/Nightloom/parts/matrixeditor.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"
#include "page/engine/optionbutton.h"
#include "usb-hid/accessorylink.h"

namespace {

constexpr const char *kMotionLabels[] = {LABEL("Scroll Left"), LABEL("Scroll Right"), LABEL("Standing")};

} // namespace

TextWidget::TextWidget(BoundTexts &texts, QWidget *parent)
    : QWidget(parent), m_shown(m_form, {}, m_motion), m_input(new QLineEdit(this)), m_stage(new QScrollArea(this)),
      m_fit(new WrappedLabel(this))
{
    m_input->setObjectName(QStringLiteral("text"));
    m_input->setFixedHeight(metrics::kControlHeight);
    texts.bind(LABEL("Text"), [this](const QString &text) { m_input->setAccessibleName(text); });
    texts.bind(LABEL("Type the text for the matrix."),
               [this](const QString &text) { m_input->setPlaceholderText(text); });
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap);
    column->addWidget(m_input);
    column->addWidget(buildMotions(texts));
    m_fit->setObjectName(QStringLiteral("notice"));
    m_fit->setFont(noteFont);
    dressText(m_fit, {Palette::kError});
    m_fit->setWordWrap(true);
    column->addWidget(m_fit);
    m_stage->setFrameShape(QFrame::NoFrame);
    m_stage->setAlignment(Qt::AlignCenter);
    m_stage->setFocusPolicy(Qt::NoFocus);
    column->addWidget(m_stage, 1);
    connect(m_input, &QLineEdit::textChanged, this, &TextWidget::onTextChanged);
    connect(&m_player, &FramePlayer::frameDue, this, &TextWidget::showFrame);
    connect(&m_player, &FramePlayer::playingChanged, this, [this](bool playing) {
        if (!playing)
            showFrame(m_shown.fullestFrame());
    });
    showFit();
    followMatrixForm();
}

TextWidget::~TextWidget() = default;

QWidget *TextWidget::buildMotions(BoundTexts &texts)
{
    auto *motions = new QWidget(this);
    describeAs(motions, QAccessible::Grouping);
    texts.bind(LABEL("Motion"), [motions](const QString &text) { motions->setAccessibleName(text); });
    auto *exclusive = new QButtonGroup(motions);
    auto *stop = new FocusGroup(motions);
    auto *row = new QHBoxLayout(motions);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    for (const char *label : kMotionLabels) {
        auto *button = new QPushButton(motions);
        button->setObjectName(QLatin1String(label));
        button->setCheckable(true);
        texts.bind(label, [button](const QString &text) {
            button->setText(text);
            button->setAccessibleName(text);
            dressOptionButton(button);
        });
        exclusive->addButton(button);
        stop->add(button);
        const auto motion = static_cast<TextMotion>(m_motions.size());
        connect(button, &QPushButton::clicked, this, [this, motion] { setMotion(motion); });
        row->addWidget(button);
        m_motions.push_back(button);
    }
    row->addStretch(1);
    m_motions.front()->setChecked(true);
    return motions;
}

void TextWidget::followMatrixForm()
{
    if (m_form == accessoryLink.form)
        return;
    m_form = accessoryLink.form;
    m_preview = m_form ? createMatrixEditor(*m_form, nullptr) : nullptr;
    delete m_stage->takeWidget();
    if (m_preview) {
        m_preview->setEditable(false);
        m_preview->setFocusPolicy(Qt::NoFocus);
        m_preview->unsetCursor();
        m_stage->setWidget(m_preview);
        m_preview->setAutoFillBackground(false); // the scroll area has switched it on
    }
    onTextChanged();
}

void TextWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    followMatrixForm();
}

void TextWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    m_player.stop(); // nobody sees it
}

QString TextWidget::text() const
{
    return m_input->text();
}

void TextWidget::setMotion(TextMotion motion)
{
    m_motion = motion;
    m_motions[static_cast<std::size_t>(motion)]->setChecked(true);
    onTextChanged();
}

void TextWidget::onTextChanged()
{
    const bool playing = m_player.isPlaying();
    m_player.stop();
    m_shown = renderer(m_form, text(), m_motion);
    showFit();
    showFrame(m_shown.fullestFrame());
    if (playing)
        m_player.play(m_shown.frameCount());
}

/// Before a save, which takes no more either.
void TextWidget::showFit()
{
    const QString text = QObject::tr("The text is too long: %1 of its %2 characters fit.");
    const bool all = m_shown.lettersShown() == m_shown.letters();
    m_fit->setText(all || m_shown.frameCount() == 0 ? QString()
                                                    : text.arg(m_shown.lettersShown()).arg(m_shown.letters()));
    m_fit->setVisible(!m_fit->text().isEmpty());
}

QString TextWidget::fit() const
{
    return m_fit->text();
}

void TextWidget::showFrame(int index)
{
    if (m_preview)
        m_preview->setFrame(index < m_shown.frameCount() ? m_shown.frame(index).flat() : std::vector<std::int32_t>());
}

void TextWidget::togglePreview()
{
    if (m_player.isPlaying())
        m_player.stop();
    else
        m_player.play(m_shown.frameCount());
}

bool TextWidget::startJob()
{
    if (text().isEmpty()) {
        qDebug() << "Input text is null";
        return false;
    }
    m_job = std::make_unique<WorkerThread>(WorkerThread::kUsualValue, text(), static_cast<std::int32_t>(m_motion),
                                           &TextWidget::renderer);
    connect(m_job.get(), &WorkerThread::progress, this, &TextWidget::progress);
    connect(m_job.get(), &WorkerThread::framesReady, this, &TextWidget::framesReady);
    m_job->begin();
    return true;
}

void TextWidget::cancelJob()
{
    m_job.reset();
}

void TextWidget::updateControlText()
{
    showFit();
    if (m_preview)
        m_preview->updateControlText();
}
