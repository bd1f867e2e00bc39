#pragma once

#include <QKeySequenceEdit>

#include "controls/accessiblecontrol.h"

class QLineEdit;

/// A field that captures one key combination: Control or Alt with a letter or digit. It shows "NA" while empty.
class ZelmarKeySequenceEdit : public QKeySequenceEdit, public Described
{
    Q_OBJECT

public:
    explicit ZelmarKeySequenceEdit(QWidget *parent = nullptr);

    /// The combination in native text, empty for none.
    QString text() const;

    /// Takes a combination as if it had been pressed here.
    void take(const QKeySequence &sequence);

    QAccessible::Role accessibleRole() const override { return QAccessible::EditableText; }
    QString valueText() const override;

Q_SIGNALS:
    /// A combination was pressed that the field does not take, and why not.
    void refused(const QString &why);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void capture(QKeyEvent *event);
    void refuse(const QKeyEvent *event);

    QLineEdit *m_lineEdit;
};
