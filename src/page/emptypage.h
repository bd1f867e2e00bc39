#pragma once

#include <QLabel>

/// A page with nothing to set: for an entry that has no page, for a family of scene modes none of which is on, and for
/// a family none of whose entries is chosen yet. It names itself and says why it is empty.
class EmptyPage : public QLabel
{
    Q_OBJECT
public:
    explicit EmptyPage(QWidget *parent = nullptr);

    /// An entry that has no page, or none for the monitor in use; its label as a source text, and why, translated.
    void showEntry(const char *label, const QString &why);

    /// A family of scene modes of which none is on; its label, and the label of the mode that is on.
    void showFamily(const char *label, const char *modeOn);

    /// A family none of whose entries is chosen; its label.
    void showUnchosen(const char *label);

    void updateControlText();

private:
    void show(const char *label, const char *note, const char *modeOn = nullptr);

    // Source texts.
    const char *m_label = "";
    const char *m_note = "";
    const char *m_modeOn = nullptr; ///< what the note names; null for nothing
    QString m_why;                  ///< instead of the note
    QLabel *m_title;
    QLabel *m_noteLabel;
};
