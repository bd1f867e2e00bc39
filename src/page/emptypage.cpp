#include "page/emptypage.h"

#include <QVBoxLayout>

#include "controls/pictures.h"
#include "controls/sharedfonts.h"
#include "page/engine/pagestyle.h"

EmptyPage::EmptyPage(QWidget *parent) : QLabel(parent), m_title(new QLabel(this)), m_note(new QLabel(this))
{
    setObjectName(QStringLiteral("EmptyPage"));
    dressPage(this);
    auto *picture = new QLabel(this);
    picture->setPixmap(Pictures::load(Pictures::kRoot + QStringLiteral("img/empty_page.png"), devicePixelRatioF()));
    m_title->setFont(titleFont);
    m_note->setFont(noteFont);
    m_title->setStyleSheet(QStringLiteral("color: #ffffff;"));
    m_note->setStyleSheet(QStringLiteral("color: #8d9a94;"));
    auto *column = new QVBoxLayout(this);
    column->addStretch(2);
    for (QLabel *label : {picture, m_title, m_note})
        column->addWidget(label, 0, Qt::AlignHCenter);
    column->addStretch(3);
    column->setSpacing(12);
}

void EmptyPage::showEntry(const char *label)
{
    m_label = label;
    m_modeOn = nullptr;
    updateControlText();
}

void EmptyPage::showFamily(const char *label, const char *modeOn)
{
    m_label = label;
    m_modeOn = modeOn;
    updateControlText();
}

void EmptyPage::updateControlText()
{
    m_title->setText(QObject::tr(m_label));
    m_note->setText(QObject::tr("This monitor has nothing to set here."));
    if (m_modeOn)
        m_note->setText(QObject::tr("Choose a mode on the left. On now: %1").arg(QObject::tr(m_modeOn)));
}
