#pragma once

#include <QLabel>

/// A page with nothing to set: for an entry that this monitor has nothing for, and for a family of scene modes none of
/// which is on. It names itself and says why it is empty.
class EmptyPage : public QLabel
{
    Q_OBJECT
public:
    explicit EmptyPage(QWidget *parent = nullptr);

    /// An entry that this monitor has nothing to set for; its label as a source text.
    void showEntry(const char *label);

    /// A family of scene modes of which none is on; its label, and the label of the mode that is on.
    void showFamily(const char *label, const char *modeOn);

    void updateControlText();

private:
    const char *m_label = "";
    const char *m_modeOn = nullptr; ///< null for an entry
    QLabel *m_title;
    QLabel *m_note;
};
