#pragma once

#include <QDialog>

/// Tells that a hot key is taken already; to be shown with exec(). Its "Ok" button accepts.
class ZelmarDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ZelmarDialog(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
