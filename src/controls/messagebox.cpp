#include "controls/messagebox.h"

#include <algorithm>

#include <QFontMetricsF>
#include <QLabel>
#include <QLayout>
#include <QPointer>
#include <QPushButton>
#include <QShowEvent>
#include <QtMath>

#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/pictures.h"
#include "controls/wrappedlabel.h"

namespace {

const char *const kBoxStyle =
    "QMessageBox {background-color: #101611;}QLabel{ color: white;}"
    "QDialogButtonBox {qproperty-centerButtons: false;alignment: bottom right;}"
    "QMessageBox QPushButton { border: 1px solid #8f8f91; border-radius: 4px; padding: 4px 12px; color: white;}";

/// The sign of a box in the hand of the program's icons, in place of the toolkit's.
void drawSign(QMessageBox &box)
{
    const char *name = box.icon() == QMessageBox::Information ? "information"
                       : box.icon() == QMessageBox::Question  ? "question"
                                                              : "warning";
    const QPixmap sign = Pictures::load(Pictures::kRoot + QStringLiteral("img/message/%1.png").arg(QLatin1String(name)),
                                        box.devicePixelRatioF());
    auto *label = box.findChild<QLabel *>(QStringLiteral("qt_msgboxex_icon_label"));
    if (label && box.icon() != QMessageBox::NoIcon && !sign.isNull())
        label->setPixmap(sign);
}

/// The toolkit's box with its words in the program's font, and no wider than lines of about one length need.
class EvenBox : public QMessageBox
{
public:
    EvenBox(Icon icon, const QString &title, const QString &text, QWidget *parent)
        : QMessageBox(icon, title, text, NoButton, parent),
          m_words(findChild<QLabel *>(QStringLiteral("qt_msgbox_label")))
    {
        setTextFormat(Qt::PlainText); // it may name a file of any name
        if (m_words)
            m_words->installEventFilter(this);
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QMessageBox::showEvent(event);
        if (!m_words || !m_words->wordWrap())
            return;
        layout()->activate();
        const int room = m_words->contentsRect().width() - std::max(m_words->indent(), 0);
        const QFontMetricsF metrics(m_words->font());
        qreal widest = 0;
        const QStringList lines = evenLines(m_words->text(), m_words->font(), room).split(u'\n');
        for (const QString &line : lines)
            widest = std::max(widest, metrics.horizontalAdvance(line));
        const int rest = std::min(room - qCeil(widest) - 1, width() - layout()->totalMinimumSize().width());
        if (rest <= 0)
            return;
        m_isEven = true;
        setFixedWidth(width() - rest);
        move(x() + rest / 2, y());
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const bool isDrawn = watched == m_words && event->type() == QEvent::Paint && m_lines.draw(*m_words);
        return isDrawn || QMessageBox::eventFilter(watched, event);
    }

    /// Laid out anew, the toolkit's box would take the width of its own again.
    bool event(QEvent *event) override
    {
        return m_isEven && event->type() == QEvent::LayoutRequest ? QDialog::event(event) : QMessageBox::event(event);
    }

private:
    QLabel *m_words;
    LabelLines m_lines;
    bool m_isEven = false;
};

/// A box in the program's look. It belongs to its parent, which may go while it is open.
class Box
{
public:
    Box(QMessageBox::Icon icon, const QString &title, const QString &text, QWidget *parent)
        : m_box(new EvenBox(icon, title, text, parent))
    {
        m_box->setStyleSheet(QLatin1String(kBoxStyle));
        drawSign(*m_box);
        holdUpItsWindow(m_box);
    }
    ~Box() { delete m_box; }
    Q_DISABLE_COPY_MOVE(Box)

    /// Adds a button that also looks focused: Enter is what most people press. The box's own style stays what it is.
    QPushButton *addButton(const QString &text, QMessageBox::ButtonRole role)
    {
        QPushButton *button = m_box->addButton(text, role);
        button->setMinimumHeight(metrics::kControlHeight);
        button->setStyleSheet(QStringLiteral("QPushButton:focus { border-color: #7bfadb; }"));
        return button;
    }

    /// Shows it until it is answered. The button; null when nobody answered: the program ended, or the window went.
    const QAbstractButton *ask(QPushButton *usual, QAbstractButton *onEscape = nullptr)
    {
        m_box->setDefaultButton(usual);
        m_box->setEscapeButton(onEscape);
        m_box->exec();
        return m_box ? m_box->clickedButton() : nullptr;
    }

private:
    QPointer<QMessageBox> m_box;
};

} // namespace

void showMessage(QMessageBox::Icon icon, const QString &title, const QString &text, const QString &button,
                 QMessageBox::ButtonRole role, QWidget *parent)
{
    Box box(icon, title, text, parent);
    box.ask(box.addButton(button, role));
}

bool askYesNo(const QString &title, const QString &text, QWidget *parent)
{
    return askOneOf(title, text, {QObject::tr("Yes"), QObject::tr("No")}, parent) == 0;
}

/// The role of an answer among so many: the first agrees, the last takes back.
static QMessageBox::ButtonRole roleOf(qsizetype place, qsizetype answers)
{
    if (place == 0)
        return QMessageBox::YesRole;
    return place + 1 < answers ? QMessageBox::DestructiveRole : QMessageBox::NoRole;
}

int askOneOf(const QString &title, const QString &text, const QStringList &answers, QWidget *parent)
{
    Box box(QMessageBox::Question, title, text, parent);
    QList<QPushButton *> buttons;
    for (qsizetype i = 0; i < answers.size(); ++i)
        buttons.append(box.addButton(answers[i], roleOf(i, answers.size())));
    const QAbstractButton *answer = box.ask(buttons.first(), buttons.last());
    const auto given = std::find(buttons.cbegin(), buttons.cend(), answer) - buttons.cbegin();
    return static_cast<int>(std::min<qsizetype>(given, buttons.size() - 1)); // nobody answered: the last, too
}
