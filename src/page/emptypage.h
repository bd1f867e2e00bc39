#pragma once

#include <QLabel>

/// A page for an entry that this monitor has nothing to set for: it names itself and says so.
class EmptyPage : public QLabel
{
    Q_OBJECT
public:
    explicit EmptyPage(QWidget *parent = nullptr);

    /// The entry that the page stands for, as a source text.
    void setEntry(const char *label);
    void updateControlText();

private:
    const char *m_entry = "";
    QLabel *m_title;
    QLabel *m_note;
};
