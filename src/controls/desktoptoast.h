#pragma once

#include <QWidget>

class QLabel;

/// A small note in the corner of the desktop. It never takes the focus and lets clicks through; the owner hides it.
class DesktopToast : public QWidget
{
    Q_OBJECT
public:
    explicit DesktopToast(QWidget *parent = nullptr);

    /// Shows a note, in place of the one before.
    void showNote(const QString &title, const QString &text);

    QString title() const;
    QString text() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void moveToCorner();

    QLabel *m_title;
    QLabel *m_text;
};
