#pragma once

#include <span>
#include <utility>
#include <vector>

#include <QDateTime>
#include <QPointer>
#include <QWidget>

#include "platform/clock.h"

class BoundTexts;
class MessageStrip;
class QLabel;
class QProgressBar;
class QPushButton;

/// A part of a long work: the values that its progress runs through, and what it is expected to take.
struct WorkStep
{
    const char *label; ///< marked with LABEL(); empty for a part that has no name
    int from;
    int to;
    platform::milliseconds expected;
};

/// What a work will still take: its step as fast as it has been until now, those behind it as expected. @p progress is
/// of the step at that place, which has gone on for @p gone.
platform::milliseconds timeLeft(std::span<const WorkStep> steps, std::size_t step, int progress,
                                platform::milliseconds gone);

/// The long work of an accessory's page, as the user meets it: what cannot be used meanwhile, how far it is, what it
/// will still take, how it is cancelled, and what is to be told of it. Doing it is the page's.
class WorkPanel : public QWidget
{
    Q_OBJECT
public:
    /// What there is to tell is told on the strip.
    WorkPanel(BoundTexts &texts, MessageStrip &strip, QWidget *parent = nullptr);

    /// What cannot be used while work goes on.
    void block(std::vector<QWidget *> widgets) { m_blocked = std::move(widgets); }

    /// Work of these steps, at least one, begins. What was told before is gone.
    void begin(std::vector<WorkStep> steps);

    /// Shows percents, at most 100. The value that ends a step begins the next one. After a failure or while the work
    /// is being cancelled nothing is shown any more.
    void showProgress(int value);

    /// The work has failed: the bar shows -1. It goes on until it has ended.
    void fail(const QString &notice);

    /// The page can be used again, and the keyboard is back where it was unless the user has gone elsewhere. Work that
    /// was cancelled may have been @p done all the same.
    void end(bool done);

    /// The work has ended. Says so when the accessory did not take all of an upload, unless something worse was said.
    void endUpload(bool complete);

    /// Says that the work was ended before anything came of it, unless something worse was said.
    void tellCancelled();

    bool isBusy() const { return !m_steps.empty(); }
    bool isCancelled() const { return m_cancelled; }

    /// The name of the step that goes on, translated.
    QString stepName() const;
    QString timeText() const;
    QString notice() const;
    void showNotice(const QString &text);

    QProgressBar *progressBar() const { return m_bar; }
    QPushButton *cancelButton() const { return m_cancel; }

Q_SIGNALS:
    void begins();
    /// Once a work: it is to end as soon as it can.
    void cancelled();
    void ended();

private:
    void layOut();
    void cancel();
    void showStep(platform::milliseconds left);
    void tellProgress();
    void takeFocus();
    void giveFocusBack();

    MessageStrip &m_strip;
    QProgressBar *m_bar;
    QPushButton *m_cancel;
    QLabel *m_step;
    QString m_timePattern;
    std::vector<QWidget *> m_blocked;
    std::vector<WorkStep> m_steps; ///< none while no work goes on
    std::size_t m_now = 0;         ///< the step that goes on
    QDateTime m_stepBegan;
    std::pair<std::size_t, int> m_told; ///< the step and the quarter of the whole that were told last
    QDateTime m_toldAt;
    platform::milliseconds m_left{};
    QPointer<QWidget> m_focusBefore; ///< while nothing can be used
    bool m_failed = false;
    bool m_cancelled = false;
};
