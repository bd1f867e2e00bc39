#include "virtualdesk/whereabouts.h"

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

QByteArray placeOf(const QString &name)
{
    const auto widgets = QApplication::allWidgets();
    for (const QWidget *widget : widgets) {
        if (!widget->isVisible() ||
            (widget->objectName() != name && name != QLatin1String(widget->metaObject()->className())))
            continue;
        const QRect part = seenPart(widget);
        if (part.isEmpty())
            continue;
        const qreal scale = widget->devicePixelRatioF();
        const QPoint corner = widget->window()->mapToGlobal(part.topLeft());
        QByteArray place;
        for (const int number : {corner.x(), corner.y(), part.width(), part.height()})
            place += QByteArray::number(qRound(number * scale)) + ' ';
        return place;
    }
    return {};
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
            answer.write(placeOf(std::exchange(m_asked, {})) + '\n');
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
