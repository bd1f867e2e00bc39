#pragma once

#include <QLabel>

#include "page/Nightloom/parts/accessorycheck.h"
#include "page/Nightloom/parts/workpanel.h"
#include "page/engine/boundtexts.h"
#include "page/engine/page.h"

class PageHead;
class QVBoxLayout;

/// A page of the accessory whose work may take long: what is worked on under the title, and at its side a column of
/// tools, above how far the work is; what there is to say of it stands under the title. While it goes on neither what
/// is worked on nor a tool can be used.
class LongWorkPage : public QLabel, public Page
{
    Q_OBJECT
public:
    void updateControlText() override;
    QWidget *widget() override { return this; }

    WorkPanel *work() const { return m_work; }
    bool isBusy() const { return m_work->isBusy(); }

Q_SIGNALS:
    /// Long work begins and ends; the window keeps everything else from the accessory meanwhile.
    void busyBegins();
    void busyEnded();

protected:
    /// The object name is what the page's style goes by; the title, and the sentence below it, are source texts.
    LongWorkPage(const QString &name, const char *title, const char *help, AccessoryCheck ensureConnected,
                 QWidget *parent);

    /// To be called once: lays out what is worked on below the title. Builds the tools.
    void layOut(QWidget *worked);

    /// Fills the column of tools, whose parent is @p tools.
    virtual void buildTools(QVBoxLayout *column, QWidget *tools) = 0;

    /// The user does not want the work any more; it tells its end as it always does.
    virtual void cancelWork() = 0;

    /// Whether the accessory is there; the user has been told when it is not.
    bool ensureConnected() const { return m_ensureConnected(); }

    BoundTexts &texts() { return m_texts; }

    PageHead *head() const { return m_head; }

    void resizeEvent(QResizeEvent *event) override;

private:
    void fitTools();

    AccessoryCheck m_ensureConnected;
    BoundTexts m_texts;
    PageHead *m_head;
    WorkPanel *m_work;
    QWidget *m_side = nullptr; ///< holds the tools and how far the work is
    QWidget *m_tools = nullptr;
};
