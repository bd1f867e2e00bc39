#include "controls/messagebox.h"

#include <QPushButton>

static const char *const kStyle =
    "QMessageBox {background-color: #101611;}QLabel{ color: white;}"
    "QDialogButtonBox {qproperty-centerButtons: false;alignment: bottom right;}"
    "QMessageBox QPushButton { border: 1px solid #8f8f91; border-radius: 4px; padding: 4px 12px; color: white;}";

/// Adds a button that also looks focused: Enter is what most people press. The box's own style stays what it is.
static QPushButton *addButton(QMessageBox &box, const QString &text, QMessageBox::ButtonRole role)
{
    QPushButton *button = box.addButton(text, role);
    button->setStyleSheet(QStringLiteral("QPushButton:focus { border-color: #7bfadb; }"));
    return button;
}

void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text, const QString &button,
                 QMessageBox::ButtonRole role, QWidget *parent)
{
    QMessageBox box(icon, title, text, QMessageBox::NoButton, parent);
    box.setStyleSheet(QLatin1String(kStyle));
    box.setTextFormat(Qt::PlainText); // it may name a file of any name
    box.setDefaultButton(addButton(box, button, role));
    box.exec();
}

bool askYesNo(const QString &title, const QString &text, QWidget *parent)
{
    QMessageBox box(QMessageBox::Question, title, text, QMessageBox::NoButton, parent);
    box.setStyleSheet(QLatin1String(kStyle));
    box.setTextFormat(Qt::PlainText); // it may name a file of any name
    box.setDefaultButton(addButton(box, QObject::tr("Yes"), QMessageBox::YesRole));
    QPushButton *no = addButton(box, QObject::tr("No"), QMessageBox::NoRole);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() != no;
}
