#include "virtualdesk/whereabouts.h"

#include <utility>

#include <QApplication>
#include <QFile>
#include <QSaveFile>
#include <QWidget>

namespace virtualdesk {

namespace {

constexpr int kLookMs = 40;

/// The part of a widget that neither its parents nor the window's edge cut off, in its window.
QRect seenPart(const QWidget *widget)
{
    QRect part = widget->rect();
    for (; !widget->isWindow(); widget = widget->parentWidget())
        part = part.translated(widget->pos()) & widget->parentWidget()->rect();
    return part;
}

/// The controls that can be seen and are meant, which their own name or that of their class says.
template <typename IsMeant> QWidgetList seen(IsMeant isMeant)
{
    QWidgetList controls;
    const auto widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        const bool isAsked = isMeant(widget->objectName()) || isMeant(QLatin1String(widget->metaObject()->className()));
        if (isAsked && widget->isVisible() && !seenPart(widget).isEmpty())
            controls << widget;
    }
    return controls;
}

QByteArray placeOf(const QString &name)
{
    const QWidgetList controls = seen([&name](const QString &each) { return each == name; });
    if (controls.isEmpty())
        return {};
    const QWidget *const widget = controls.front();
    const QRect part = seenPart(widget);
    const qreal scale = widget->devicePixelRatioF();
    const QPoint corner = widget->window()->mapToGlobal(part.topLeft());
    QByteArray place;
    for (const int number : {corner.x(), corner.y(), part.width(), part.height()})
        place += QByteArray::number(qRound(number * scale)) + ' ';
    return place;
}

QByteArray namesLike(const QString &beginning)
{
    QStringList names;
    const QWidgetList controls = seen([&beginning](const QString &each) { return each.startsWith(beginning); });
    for (const QWidget *control : controls)
        names << control->objectName();
    names.sort();
    return names.join('\n').toUtf8();
}

QByteArray answerTo(const QString &question)
{
    return question.endsWith('*') ? namesLike(question.chopped(1)) : placeOf(question);
}

} // namespace

Whereabouts::Whereabouts(const QString &folder, QObject *parent) : QObject(parent), m_folder(folder)
{
    connect(&m_timer, &QTimer::timeout, this, &Whereabouts::look);
    m_timer.start(kLookMs);
}

void Whereabouts::look()
{
    if (!m_asked.isEmpty()) { // one look later: what was pressed before somebody asked has arrived by now
        QSaveFile answer(m_folder.filePath(QStringLiteral("place.txt")));
        if (answer.open(QIODevice::WriteOnly)) {
            answer.write(answerTo(std::exchange(m_asked, {})) + '\n');
            answer.commit();
        }
    }
    QFile question(m_folder.filePath(QStringLiteral("where.txt")));
    if (question.open(QIODevice::ReadOnly)) {
        m_asked = QString::fromUtf8(question.readAll()).trimmed();
        question.close();
        question.remove();
    }
}

} // namespace virtualdesk
