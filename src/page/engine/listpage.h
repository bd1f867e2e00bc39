#pragma once

#include <QFrame>
#include <QLabel>

#include "page/engine/boundtexts.h"
#include "page/engine/page.h"

class PageHead;
class QHBoxLayout;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

/// A page that is a list of rows which the user adds to: heading, a line of tools, the rows, and a line for what there
/// is to say.
class ListPage : public QFrame, public Page
{
    Q_OBJECT
public:
    /// The object name is what the page's style goes by; the texts are source texts, the last one for an empty list;
    /// null where showList() is always used.
    ListPage(const QString &name, const char *title, const char *description, const char *nothing,
             QWidget *parent = nullptr);

    void updateControlText() override;
    QWidget *widget() override { return this; }

    /// What is said under the title; empty when there is nothing to say.
    QString notice() const;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    QHBoxLayout *heading();
    QHBoxLayout *tools() { return m_tools; }

    /// Puts a row below the others.
    void addRow(QWidget *row);

    /// Shows a list that scrolls by itself in place of the rows, unless it is empty.
    void showList(QWidget *list, bool isEmpty);

    /// Takes a row away; it is deleted when the control that asked for it has returned.
    void removeRow(QWidget *row);

    BoundTexts &texts() { return m_texts; }

    enum class Tone { Plain, Warning };
    void showNotice(const QString &text, Tone tone = Tone::Plain);

    /// A button with a text; its object name is what connects and styles it.
    QPushButton *makeButton(const char *label, const QString &name);

    /// The button that stores the list, at the right of the tools.
    QPushButton *addApplyButton(const QString &name);

    /// Lights that button, and says so, while the list differs from what counts.
    void setWaiting(bool waiting);

    /// To be called when the list was written to its file, or was not.
    void showStored(bool stored, const QString &fileName);

private:
    QWidget *buildList();
    void fitHeight();
    void showWhetherEmpty();

    BoundTexts m_texts;
    PageHead *m_head;
    QHBoxLayout *m_tools;
    QScrollArea *m_area = nullptr;
    QVBoxLayout *m_rows = nullptr;
    QLabel *m_nothing;
    QPushButton *m_apply = nullptr;
};

/// The button that takes a row away.
QPushButton *makeTrashButton(QWidget *parent);
