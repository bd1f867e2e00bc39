#include "controls/desktopquestion.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "controls/metrics.h"
#include "controls/palette.h"

static QPushButton *makeButton(const QString &name, QWidget *parent)
{
    auto *button = new QPushButton(parent);
    button->setObjectName(name);
    button->setFixedHeight(metrics::kControlHeight);
    button->setStyleSheet(Palette::styled(u"QPushButton { color: @text; background-color: @field; "
                                          "border: 1px solid @edge; border-radius: 8px; padding: 0 14px; }"
                                          "QPushButton:hover, QPushButton:focus { border-color: @mint; }"));
    return button;
}

DesktopQuestion::DesktopQuestion(QWidget *parent)
    : DesktopToast(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      m_yes(makeButton(QStringLiteral("questionYes"), this)), m_later(makeButton(QStringLiteral("questionLater"), this))
{
    auto *row = new QHBoxLayout;
    row->addWidget(m_yes);
    row->addWidget(m_later);
    row->addStretch(1);
    addBelow(row);
}

void DesktopQuestion::ask(const QString &title, const QString &text, const QString &yes, const QString &later)
{
    m_yes->setText(yes);
    m_later->setText(later);
    setAccessibleName(title);
    showNote(title, text);
}
