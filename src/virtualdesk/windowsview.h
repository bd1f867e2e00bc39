#pragma once

#include <QWidget>

namespace virtualdesk {

class VirtualDesk;

/// A picture of the displays and of the programs' windows on them, without the frames that cannot be seen; the one in
/// front is lit.
class WindowsView : public QWidget
{
    Q_OBJECT

public:
    /// The desk outlives it.
    explicit WindowsView(VirtualDesk &desk, QWidget *parent = nullptr);

    QSize sizeHint() const override { return {388, 130}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    VirtualDesk &m_desk;
};

} // namespace virtualdesk
