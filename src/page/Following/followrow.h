#pragma once

#include <QFrame>

#include "following/followlist.h"

class QComboBox;
class QLineEdit;
class QPushButton;

/// One program and the scene it wants.
class FollowRow : public QFrame
{
    Q_OBJECT
public:
    explicit FollowRow(const FollowEntry &entry, QWidget *parent = nullptr);

    const QString &path() const { return m_path; }

    /// The row as it would be stored.
    FollowEntry entry() const;

    QComboBox *sceneBox() const { return m_scenes; }
    QPushButton *trashButton() const { return m_trash; }

    void updateControlText();

Q_SIGNALS:
    void sceneChosen();

private:
    void fillScenes(int chosen);

    QString m_path;
    QLineEdit *m_pathField;
    QComboBox *m_scenes;
    QPushButton *m_trash;
};
