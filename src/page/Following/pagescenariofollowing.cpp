#include "page/Following/pagescenariofollowing.h"

#include <algorithm>

#include <QHBoxLayout>
#include <QPushButton>
#include <QSet>
#include <QStandardPaths>

#include "controls/filequestion.h"
#include "following/followscenes.h"
#include "page/Following/followrows.h"
#include "page/engine/labels.h"

pageScenarioFollowing::pageScenarioFollowing(QWidget *parent)
    : ListPage(QStringLiteral("pageScenarioFollowing"), LABEL("Follow Setting"), LABEL("Follow Desc"),
               LABEL("No programs yet: add one and choose its scene."), parent)
{
    buildTools();
    m_list = new FollowRows(m_programs, this);
    connect(m_list, &FollowRows::sceneChosen, this, &pageScenarioFollowing::chooseScene);
    connect(m_list, &FollowRows::deleteWanted, this, &pageScenarioFollowing::deleteProgram);
    connect(&m_watch, &ForegroundWatch::programInFront, &m_follower, &SceneFollower::programInFront);
    loadPrograms();
    showPrograms();
    save();
}

void pageScenarioFollowing::buildTools()
{
    auto *add = makeButton(LABEL("Add Scence"), QStringLiteral("pushButtonAdd"));
    connect(add, &QPushButton::clicked, this, &pageScenarioFollowing::on_pushButtonAdd_clicked);
    tools()->addWidget(add);
    QPushButton *apply = addApplyButton(QStringLiteral("pushButtonApply"));
    connect(apply, &QPushButton::clicked, this, &pageScenarioFollowing::on_pushButtonApply_clicked);
}

QString pageScenarioFollowing::askForProgram()
{
    return askForFile(this, QObject::tr("open"), QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
                      QObject::tr("All file (*.*)"));
}

void pageScenarioFollowing::on_pushButtonAdd_clicked()
{
    const QString path = askForProgram();
    if (path.isEmpty())
        return;
    const auto isSame = [program = programName(path)](const FollowEntry &each) {
        return programName(each.path) == program;
    };
    const auto found = std::find_if(m_programs.begin(), m_programs.end(), isSame);
    const auto index = found - m_programs.begin();
    const bool isNew = found == m_programs.end();
    if (isNew) {
        m_programs.push_back({path, 0});
        showPrograms();
        showWaiting();
    } else {
        showNotice(QObject::tr("%1 is in the list already.").arg(programName(path)));
    }
    m_list->reveal(static_cast<int>(index));
}

void pageScenarioFollowing::on_pushButtonApply_clicked()
{
    save();
}

void pageScenarioFollowing::chooseScene(int index, int scene)
{
    m_programs[static_cast<std::size_t>(index)].scene = scene;
    showWaiting();
}

void pageScenarioFollowing::deleteProgram(int index)
{
    m_programs.erase(m_programs.begin() + index);
    showPrograms();
    showWaiting();
}

FollowRow *pageScenarioFollowing::followRow(std::size_t index)
{
    return m_list->reveal(static_cast<int>(index));
}

/// A file name is one row, whatever the groups are called.
void pageScenarioFollowing::loadPrograms()
{
    QSet<QString> names;
    for (const FollowEntry &entry : loadFollowList()) {
        const qsizetype before = names.size();
        names.insert(programName(entry.path));
        if (names.size() > before)
            m_programs.push_back(entry);
    }
}

void pageScenarioFollowing::showPrograms()
{
    m_list->showList();
    showList(m_list, m_programs.empty());
}

void pageScenarioFollowing::showWaiting()
{
    setWaiting(!m_isStored || m_programs != m_saved);
}

void pageScenarioFollowing::save()
{
    m_saved = m_programs;
    rebuildTable();
    m_isStored = saveFollowList(m_saved);
    showStored(m_isStored, QStringLiteral("scenceSetting.ini"));
}

/// Scenes are told by their displayed names, so the table is made anew in every language; always from what was saved.
void pageScenarioFollowing::rebuildTable()
{
    QStringList scenes;
    for (const FollowScene &scene : followScenes())
        scenes.append(QObject::tr(scene.name));
    QHash<QString, QString> table;
    for (const FollowEntry &entry : m_saved)
        table.insert(programName(entry.path), scenes.value(entry.scene));
    m_follower.setFollowTable(table);
}

void pageScenarioFollowing::updateControlText()
{
    ListPage::updateControlText();
    m_list->updateControlText();
    rebuildTable();
}
