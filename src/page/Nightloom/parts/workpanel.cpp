#include "page/Nightloom/parts/workpanel.h"

#include <algorithm>
#include <utility>

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "controls/announcer.h"
#include "controls/focusgroup.h"
#include "controls/messagestrip.h"
#include "controls/metrics.h"
#include "page/Nightloom/parts/toolcolumn.h"
#include "page/engine/boundtexts.h"
#include "page/engine/labels.h"
#include "page/engine/note.h"
#include "platform/desk.h"
#include "platform/pause.h"
#include "usb-hid/accessoryupload.h"

using platform::milliseconds;

static constexpr milliseconds kBreath{1000}; // between two tellings of how far it is

milliseconds timeLeft(std::span<const WorkStep> steps, std::size_t step, int progress, milliseconds gone)
{
    constexpr double kTooLittle = 0.05; // of a step, to tell its speed
    const WorkStep &now = steps[step];
    const double done = std::clamp(double(progress - now.from) / (now.to - now.from), 0.0, 1.0);
    gone = std::max(gone, milliseconds(0)); // somebody may have set the clock
    milliseconds left = done < kTooLittle ? std::max(now.expected - gone, milliseconds(0))
                                          : milliseconds(static_cast<qint64>(double(gone.count()) * (1 - done) / done));
    for (const WorkStep &later : steps.subspan(step + 1))
        left += later.expected;
    return left;
}

WorkPanel::WorkPanel(BoundTexts &texts, MessageStrip &strip, QWidget *parent)
    : QWidget(parent), m_strip(strip), m_bar(new QProgressBar(this)),
      m_cancel(makeToolButton(LABEL("Cancel"), texts, this)), m_step(makeNote(this))
{
    layOut();
    m_bar->setRange(0, kProgressEnd);
    texts.bind(LABEL("Progress"), [this](const QString &text) { m_bar->setAccessibleName(text); });
    texts.bind(LABEL("%1 s left"), [this](const QString &text) {
        m_timePattern = text;
        showStep(m_left);
    });
    connect(m_cancel, &QPushButton::clicked, this, &WorkPanel::cancel);
}

void WorkPanel::layOut()
{
    m_bar->setFixedHeight(20);
    m_bar->setAlignment(Qt::AlignCenter);
    m_bar->hide(); // until there is something to show
    QSizePolicy policy = m_cancel->sizePolicy();
    policy.setRetainSizeWhenHidden(true); // short work would make what is below it jump
    m_cancel->setSizePolicy(policy);
    m_cancel->hide();
    auto *row = new QHBoxLayout;
    row->setSpacing(metrics::kGap);
    row->addWidget(m_bar, 1);
    row->addWidget(m_cancel, 0, Qt::AlignRight);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    column->addLayout(row);
    column->addWidget(m_step);
}

void WorkPanel::begin(std::vector<WorkStep> steps)
{
    m_steps = std::move(steps);
    m_now = 0;
    m_stepBegan = platform::desk().clock().now();
    m_failed = false;
    m_cancelled = false;
    m_told = {m_steps.size(), 0}; // nothing
    m_toldAt = m_stepBegan.addMSecs(-kBreath.count());
    showNotice({});
    showProgress(m_steps.front().from);
    takeFocus();
    Q_EMIT begins();
}

void WorkPanel::showProgress(int value)
{
    if (m_failed || m_cancelled)
        return;
    m_bar->show();
    m_bar->setMinimum(std::min(value, 0));
    m_bar->setFormat(value < 0 ? QStringLiteral("%v") : QStringLiteral("%p%"));
    m_bar->setValue(std::min(value, m_bar->maximum()));
    if (!isBusy() || value < 0)
        return;
    const QDateTime now = platform::desk().clock().now();
    if (value >= m_steps[m_now].to && m_now + 1 < m_steps.size()) {
        value = m_steps[++m_now].from;
        m_stepBegan = now;
        m_bar->setValue(value); // or the next step would begin where the last one ended
    }
    showStep(timeLeft(m_steps, m_now, value, milliseconds(m_stepBegan.msecsTo(now))));
    tellProgress();
}

/// Now and then: who hears it wants to hear other things as well.
void WorkPanel::tellProgress()
{
    constexpr int kQuarter = kProgressEnd / 4;
    const std::pair now(m_now, m_bar->value() / kQuarter);
    const QDateTime time = platform::desk().clock().now();
    if (now == m_told || platform::endOf(m_toldAt, kBreath, time) > time)
        return;
    m_told = now;
    m_toldAt = time;
    QStringList parts = {stepName(), m_bar->text()};
    parts.removeAll(QString());
    Announcer::say(parts.join(QLatin1Char(' ')));
}

void WorkPanel::fail(const QString &notice)
{
    showProgress(kProgressFailed);
    m_failed = true;
    showNotice(notice);
}

void WorkPanel::end(bool done)
{
    for (QWidget *widget : m_blocked)
        widget->setEnabled(true);
    giveFocusBack();
    m_steps.clear();
    m_cancel->hide();
    m_bar->setVisible(done || !m_cancelled); // else what it showed last is not how far it came
    if (done) {
        m_bar->setValue(m_bar->maximum());
        Announcer::say(m_bar->text());
    }
    showStep(milliseconds(0));
    Q_EMIT ended();
}

void WorkPanel::cancel()
{
    if (!isBusy() || m_cancelled)
        return;
    m_cancelled = true;
    Q_EMIT cancelled();
}

QString WorkPanel::stepName() const
{
    return isBusy() && *m_steps[m_now].label ? QObject::tr(m_steps[m_now].label) : QString();
}

QString WorkPanel::timeText() const
{
    const qint64 seconds = (m_left.count() + 999) / 1000;
    return isBusy() && seconds > 0 ? m_timePattern.arg(seconds) : QString();
}

void WorkPanel::showStep(milliseconds left)
{
    m_left = left;
    QStringList parts = {stepName(), timeText()};
    parts.removeAll(QString());
    m_step->setText(parts.join(QStringLiteral(" · ")));
    m_step->setVisible(!parts.isEmpty());
}

QString WorkPanel::notice() const
{
    return m_strip.text();
}

void WorkPanel::showNotice(const QString &text)
{
    m_strip.say(text, MessageStrip::Tone::Refusal);
}

/// The keyboard goes to the one button that is left of the page.
void WorkPanel::takeFocus()
{
    m_focusBefore = window()->focusWidget();
    m_cancel->show();
    bool taken = false;
    for (QWidget *widget : m_blocked) {
        taken = taken || (m_focusBefore && widget->isAncestorOf(m_focusBefore));
        widget->setEnabled(false);
    }
    if (taken)
        focusInSight(m_cancel, Qt::OtherFocusReason);
}

void WorkPanel::giveFocusBack()
{
    const QWidget *now = window()->focusWidget();
    if (m_focusBefore && m_focusBefore->isVisible() && (!now || now == m_cancel))
        m_focusBefore->setFocus();
}

void WorkPanel::endUpload(bool complete)
{
    if (!complete && !m_failed)
        showNotice(QObject::tr("The accessory did not take everything."));
    end(complete);
}

void WorkPanel::tellCancelled()
{
    if (!m_failed)
        showNotice(QObject::tr("Cancelled. Nothing was changed."));
}
