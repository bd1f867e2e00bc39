#pragma once

#include <QObject>

#include "controls/valuemark.h"

class BoundTexts;
class QComboBox;
class QPushButton;
class QVBoxLayout;
class QWidget;

/// The part of the tray panel by which the scene mode is chosen: the list of modes and the two halves of a mode.
class TrayScene : public QObject
{
    Q_OBJECT
public:
    /// Puts its controls into the column, whose parent is @p body and owns this.
    TrayScene(BoundTexts &texts, QVBoxLayout *column, QWidget *body);

    /// The modes that the monitor has, in the language of now.
    void fill();

    /// Shows which one is on, and what is to be said of that.
    void show(Mark mark);

    /// The words of what is shown: mode and half, or a dash.
    QString words() const { return m_words; }

    /// Puts the keyboard on the list.
    void begin();

    /// The last control that the keyboard reaches here.
    QPushButton *last() const { return m_custom; }

Q_SIGNALS:
    /// As TrayPanel's.
    void sceneChosen(int value);
    void halfChosen(bool defaultView);

private:
    QWidget *buildHalves(BoundTexts &texts, QWidget *body);

    QComboBox *m_scene;
    QPushButton *m_default = nullptr;
    QPushButton *m_custom = nullptr;
    QString m_words;
};
