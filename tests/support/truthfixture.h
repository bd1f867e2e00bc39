#pragma once

#include "support/windowfixture.h"

/// A window whose controls are compared with what the simulated monitor has.
class TruthFixture : public WindowFixture
{
    Q_OBJECT
protected:
    /// Until nothing is under way any more.
    void settle();

    /// Lets time pass, and what it brings happen at its time.
    void pass(std::chrono::milliseconds time);

    /// The controls in sight that show another value than the monitor has, without a mark.
    QStringList lies() const;

    /// The monitor that the window stands for.
    virtualdesk::SimulatedMonitor &inUse() const;

    /// What the window says of it: its label, and "connected", "no answer" or "no monitor".
    QString status() const;

    QPushButton *half(bool custom) const;
    SliderWidget *slider(const char *name) const { return m_window->scenePage()->slider(name); }
    void openPage(int family, const char *label);
};
