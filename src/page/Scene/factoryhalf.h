#pragma once

#include <QWidget>

class BoundTexts;
class MonitorPicture;
class QLabel;
class QPushButton;
struct SceneMode;

/// The factory half of a mode: what the mode makes of a picture, what it is for, and a button towards the user's own
/// half.
class FactoryHalf : public QWidget
{
public:
    FactoryHalf(BoundTexts &texts, QWidget *parent);

    /// Shows a mode, in the language of now; null while none is known.
    void showMode(const SceneMode *mode);

    QPushButton *ownButton() const { return m_own; }

private:
    MonitorPicture *m_look;
    QLabel *m_words;
    QPushButton *m_own;
};
