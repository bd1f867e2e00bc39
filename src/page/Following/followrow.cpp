#include "page/Following/followrow.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "controls/plaintext.h"
#include "following/followscenes.h"
#include "page/engine/dropdown.h"
#include "page/engine/listpage.h"

FollowRow::FollowRow(const FollowEntry &entry, QWidget *parent)
    : QFrame(parent), m_path(entry.path), m_pathField(new QLineEdit(this)), m_scenes(makeDropDown(this)),
      m_trash(makeTrashButton(this))
{
    setObjectName(QStringLiteral("listRow"));
    auto *name = new QLabel(programName(entry.path), this);
    name->setTextFormat(Qt::PlainText);
    name->setFixedWidth(220);
    name->setToolTip(asItStands(name->text()));
    m_pathField->setObjectName(QStringLiteral("path"));
    m_pathField->setText(QDir::toNativeSeparators(entry.path));
    m_pathField->setCursorPosition(0);
    m_pathField->setToolTip(asItStands(m_pathField->text()));
    m_pathField->setEnabled(false);
    m_scenes->setFixedSize(220, 36);
    fillScenes(entry.scene);
    connect(m_scenes, &QComboBox::activated, this, &FollowRow::sceneChosen);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(16, 8, 12, 8);
    row->setSpacing(12);
    row->addWidget(name);
    row->addWidget(m_pathField, 1);
    row->addWidget(m_scenes);
    row->addWidget(m_trash);
    updateControlText();
}

void FollowRow::fillScenes(int chosen)
{
    const QSignalBlocker blocker(m_scenes);
    m_scenes->clear();
    for (const FollowScene &scene : followScenes())
        m_scenes->addItem(QObject::tr(scene.name));
    m_scenes->setCurrentIndex(followSceneAt(chosen) ? chosen : 0);
}

FollowEntry FollowRow::entry() const
{
    return {m_path, m_scenes->currentIndex()};
}

void FollowRow::updateControlText()
{
    fillScenes(m_scenes->currentIndex());
    const QString program = programName(m_path);
    m_scenes->setAccessibleName(program);
    m_trash->setToolTip(QObject::tr("Delete"));
    m_trash->setAccessibleName(QStringLiteral("%1: %2").arg(program, m_trash->toolTip()));
}
