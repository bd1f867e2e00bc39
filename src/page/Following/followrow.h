#pragma once

#include <QFrame>

#include "following/followlist.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

/// Shows one program of a list and the scene it wants, now this one and now that.
class FollowRow : public QFrame
{
    Q_OBJECT
public:
    static constexpr int kHeight = 54; ///< pixels: the controls' 36, the gaps above and below, and the frame

    explicit FollowRow(QWidget *parent = nullptr);

    /// Shows the program at a place of the list.
    void showEntry(int index, const FollowEntry &entry);

    int index() const { return m_index; }
    const QString &path() const { return m_path; }
    QComboBox *sceneBox() const { return m_scenes; }
    QPushButton *trashButton() const { return m_trash; }

    void updateControlText();

Q_SIGNALS:
    /// The scene of the program at this place of the list is to be another one.
    void sceneChosen(int index, int scene);

    /// The program at this place of the list is to go.
    void deleteWanted(int index);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void showNames();
    void showPath();

    int m_index = -1;
    QString m_path;
    QLabel *m_name;
    QLineEdit *m_pathField;
    QComboBox *m_scenes;
    QPushButton *m_trash;
};
