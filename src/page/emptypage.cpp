#include "page/emptypage.h"

#include <QVBoxLayout>

#include "controls/accessiblecontrol.h"
#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "controls/picturelabel.h"
#include "controls/pictures.h"
#include "controls/sharedfonts.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"

EmptyPage::EmptyPage(QWidget *parent) : QLabel(parent), m_title(new QLabel(this)), m_noteLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("EmptyPage"));
    describeAs(this, QAccessible::Pane);
    layGround(this);
    auto *picture = new PictureLabel(this);
    picture->setPicture(QStringLiteral("img/empty_page.png"));
    m_title->setFont(titleFont);
    m_noteLabel->setFont(noteFont);
    dressText(m_title, {Palette::kText});
    dressText(m_noteLabel, {Palette::kHint});
    auto *column = new QVBoxLayout(this);
    column->addStretch(2);
    for (QLabel *label : {static_cast<QLabel *>(picture), m_title, m_noteLabel})
        column->addWidget(label, 0, Qt::AlignHCenter);
    column->addStretch(3);
    column->setSpacing(metrics::kGap);
}

void EmptyPage::showEntry(const char *label, const QString &why)
{
    m_why = why;
    show(label, LABEL("There is nothing to set here yet."));
}

void EmptyPage::showFamily(const char *label, const char *modeOn)
{
    m_why.clear();
    show(label, LABEL("Choose a mode on the left. On now: %1"), modeOn);
}

void EmptyPage::showUnchosen(const char *label)
{
    m_why.clear();
    show(label, LABEL("Choose an entry on the left."));
}

void EmptyPage::show(const char *label, const char *note, const char *modeOn)
{
    m_label = label;
    m_note = note;
    m_modeOn = modeOn;
    updateControlText();
}

void EmptyPage::updateControlText()
{
    m_title->setText(QObject::tr(m_label));
    setAccessibleName(m_title->text());
    const QString note = QObject::tr(m_note);
    m_noteLabel->setText(!m_why.isEmpty() ? m_why : m_modeOn ? note.arg(QObject::tr(m_modeOn)) : note);
}
