#pragma once

#include <QMessageBox>
#include <QStringList>

/// A message box in the program's dark look, with one button, shown modally. Texts come translated.
void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text, const QString &button,
                 QMessageBox::ButtonRole role = QMessageBox::YesRole, QWidget *parent = nullptr);

/// A question in the same look, with "Yes" and "No". True on any answer but "No", which Escape gives as
/// well; false when nobody answered, as the program ended or the window went.
bool askYesNo(const QString &title, const QString &text, QWidget *parent = nullptr);

/// A question in the same look with several answers. The place of the one that was given; the last one is what Escape
/// gives, and closing the box.
int askOneOf(const QString &title, const QString &text, const QStringList &answers, QWidget *parent = nullptr);
