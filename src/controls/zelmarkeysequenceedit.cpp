#include "controls/zelmarkeysequenceedit.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QSignalBlocker>

#include "controls/metrics.h"
#include "controls/palette.h"

namespace {
constexpr QSize kLeastSize(120, metrics::kControlHeight);
const QString kKeysStyle =
    QStringLiteral("QLineEdit { color: @mint; background: @well; border: 1px solid @edge; border-radius: 8px;"
                   " padding: 0 8px; font-size: 14px; }"
                   "QLineEdit:hover { background: @card; }"
                   "QLineEdit:focus { border-color: @mint; }"
                   "QLineEdit:disabled { color: @disabled; border-color: @restingEdge; }");

QString nothingSet()
{
    return QObject::tr("NA");
}

/// A style sheet makes the hint half as strong as the text, which is too weak to be read here.
void strengthenHint(QLineEdit *lineEdit)
{
    const QColor hint = lineEdit->isEnabled() ? Palette::kHint : Palette::kDisabled;
    QPalette palette = lineEdit->palette();
    if (palette.color(QPalette::PlaceholderText) == hint)
        return;
    palette.setColor(QPalette::PlaceholderText, hint);
    lineEdit->setPalette(palette);
}

/// Paints an empty line edit. The base class may have put a hint of its own there, and a line edit whose text is
/// centred leaves its hint out while it has the focus.
void paintEmpty(QLineEdit *lineEdit, QEvent *event)
{
    lineEdit->setPlaceholderText(nothingSet());
    strengthenHint(lineEdit);
    lineEdit->event(event);
    if (!lineEdit->hasFocus())
        return;
    QPainter painter(lineEdit);
    painter.setPen(lineEdit->palette().color(QPalette::PlaceholderText));
    painter.drawText(lineEdit->rect(), Qt::AlignCenter, lineEdit->placeholderText());
}

/// Keeps the line edit from reacting to focus by itself and its hint in step with what it holds.
class KeyFieldFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        auto *lineEdit = qobject_cast<QLineEdit *>(watched);
        if (lineEdit && event->type() == QEvent::Paint && lineEdit->text().isEmpty()) {
            paintEmpty(lineEdit, event);
            return true;
        }
        if (lineEdit && event->type() == QEvent::FocusIn) {
            if (lineEdit->text() == nothingSet())
                lineEdit->setPlaceholderText(QString());
            return true;
        }
        if (lineEdit && event->type() == QEvent::FocusOut) {
            if (lineEdit->text().isEmpty())
                lineEdit->setPlaceholderText(nothingSet());
            return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

bool isLetterOrDigit(int key)
{
    return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

bool isModifier(int key)
{
    return key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Shift || key == Qt::Key_Meta ||
           key == Qt::Key_AltGr;
}
} // namespace

ZelmarKeySequenceEdit::ZelmarKeySequenceEdit(QWidget *parent)
    : QKeySequenceEdit(parent), m_lineEdit(findChild<QLineEdit *>())
{
    describeControlsToAssistiveSoftware();
    m_lineEdit->setPlaceholderText(nothingSet());
    m_lineEdit->setAlignment(Qt::AlignCenter);
    m_lineEdit->setReadOnly(true); // what is pasted, dropped or cut would not be the combination that is bound
    m_lineEdit->setContextMenuPolicy(Qt::PreventContextMenu);
    m_lineEdit->setStyleSheet(Palette::styled(kKeysStyle));
    m_lineEdit->setMinimumSize(kLeastSize);
    m_lineEdit->installEventFilter(new KeyFieldFilter(this));
}

QString ZelmarKeySequenceEdit::text() const
{
    return keySequence().toString(QKeySequence::NativeText);
}

QString ZelmarKeySequenceEdit::valueText() const
{
    return text().isEmpty() ? nothingSet() : text();
}

void ZelmarKeySequenceEdit::keyPressEvent(QKeyEvent *event)
{
    const Qt::KeyboardModifiers held = event->modifiers();
    if (event->key() == Qt::Key_Backspace) {
        clear();
        m_lineEdit->setPlaceholderText(nothingSet());
        return;
    }
    const bool wanted = (held & (Qt::ControlModifier | Qt::AltModifier)) && isLetterOrDigit(event->key());
    // The digits of the numeric pad ("Num+5" in the native text) are left to whoever works in the foreground.
    if (wanted && !held.testFlag(Qt::KeypadModifier) && !event->isAutoRepeat()) {
        capture(event);
        return;
    }
    refuse(event);
    event->ignore();
}

void ZelmarKeySequenceEdit::refuse(const QKeyEvent *event)
{
    if (event->isAutoRepeat() || isModifier(event->key()))
        return; // a combination is only beginning
    if (event->modifiers().testFlag(Qt::KeypadModifier))
        Q_EMIT refused(QObject::tr("Keys of the numeric pad cannot be used."));
    else
        Q_EMIT refused(QObject::tr("Hold Ctrl or Alt and press a letter or a digit."));
}

void ZelmarKeySequenceEdit::capture(QKeyEvent *event)
{
    const QKeySequence sequence(event->keyCombination());
    {
        // The base class waits for further combinations; one is enough here, so its half-way state is not shown.
        const QSignalBlocker blocker(this);
        QKeySequenceEdit::keyPressEvent(event);
    }
    take(sequence);
}

void ZelmarKeySequenceEdit::take(const QKeySequence &sequence)
{
    {
        const QSignalBlocker blocker(this);
        setKeySequence(sequence);
    }
    Q_EMIT keySequenceChanged(sequence);
    Q_EMIT editingFinished();
}

void ZelmarKeySequenceEdit::focusInEvent(QFocusEvent *event)
{
    QKeySequenceEdit::focusInEvent(event);
    m_lineEdit->update();
}

void ZelmarKeySequenceEdit::focusOutEvent(QFocusEvent *event)
{
    // The base class ends a capture here and tells so. Each of ours ended with its combination, so there is none.
    QWidget::focusOutEvent(event);
    m_lineEdit->update();
}

void ZelmarKeySequenceEdit::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        m_lineEdit->setPlaceholderText(nothingSet());
    QKeySequenceEdit::changeEvent(event);
}
