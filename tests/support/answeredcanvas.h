#pragma once

#include <memory>

#include <QtTest>

#include "page/Nightloom/canvas/frametabs.h"
#include "page/Nightloom/canvas/pageledmatrixcanvas.h"
#include "support/matrixcells.h"
#include "support/matrixforms.h"

/// The canvas page with its boxes and file dialogs answered by the test.
class AnsweredCanvas : public pageLEDMatrixCanvas
{
public:
    AnsweredCanvas() : pageLEDMatrixCanvas([this] { return connected; })
    {
        connect(this, &pageLEDMatrixCanvas::busyBegins, this, [this] { busyEvents.append(1); });
        connect(this, &pageLEDMatrixCanvas::busyEnded, this, [this] { busyEvents.append(0); });
    }

    using pageLEDMatrixCanvas::Leaving;

    bool connected = true;
    QString fileName;
    Leaving leaving = Leaving::Stay;
    int timesAsked = 0; ///< before it was left
    QStringList warnings;
    QList<int> busyEvents;

protected:
    QString askSaveFile() override { return fileName; }
    QString askOpenFile() override { return fileName; }
    void warn(const QString &text) override { warnings.append(text); }
    Leaving askLeaving() override { return ++timesAsked, leaving; }
};

/// Presses a cell of row 0 in the open editor.
inline void draw(AnsweredCanvas &page, int column)
{
    QTest::mouseClick(page.tabs()->currentEditor(), Qt::LeftButton, {},
                      middle(*page.tabs()->currentEditor(), {0, column}));
}

/// A page on the screen, for a form of the matrix.
inline std::unique_ptr<AnsweredCanvas> makePage(int form = 0)
{
    useForm(form);
    auto page = std::make_unique<AnsweredCanvas>();
    page->resize(1000, 680);
    page->show();
    return page;
}

/// Begins a long work of the page's and waits until it has ended.
inline bool finish(AnsweredCanvas &page, void (AnsweredCanvas::*work)())
{
    (page.*work)();
    return QTest::qWaitFor([&page] { return !page.isBusy(); });
}
