#include "page/Following/pagescenariofollowing.h"

#include <algorithm>

#include <QFileDialog>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStandardPaths>

#include "following/followscenes.h"
#include "page/Following/followrow.h"
#include "page/engine/labels.h"

static constexpr std::size_t kShownRows = 300;

pageScenarioFollowing::pageScenarioFollowing(QWidget *parent)
    : ListPage(QStringLiteral("pageScenarioFollowing"), LABEL("Follow Setting"), LABEL("Follow Desc"),
               LABEL("No programs yet: add one and choose its scene."), parent)
{
    auto *add = makeButton(LABEL("Add Scence"), QStringLiteral("pushButtonAdd"));
    connect(add, &QPushButton::clicked, this, &pageScenarioFollowing::on_pushButtonAdd_clicked);
    connect(&m_watch, &ForegroundWatch::programInFront, &m_follower, &SceneFollower::programInFront);
    tools()->addWidget(add);
    QPushButton *apply = addApplyButton(QStringLiteral("pushButtonApply"));
    connect(apply, &QPushButton::clicked, this, &pageScenarioFollowing::on_pushButtonApply_clicked);
    loadRows();
    save();
}

QString pageScenarioFollowing::askForProgram()
{
    return QFileDialog::getOpenFileName(this, QObject::tr("open"),
                                        QStandardPaths::writableLocation(QStandardPaths::DesktopLocation),
                                        QObject::tr("All file (*.*)"));
}

void pageScenarioFollowing::on_pushButtonAdd_clicked()
{
    const QString path = askForProgram();
    if (path.isEmpty())
        return;
    if (addFollowRow({path, 0}))
        setWaiting(true);
    else
        showNotice(QObject::tr("%1 is in the list already.").arg(programName(path)));
}

void pageScenarioFollowing::on_pushButtonApply_clicked()
{
    save();
}

/// Null when there is a row of that file name.
FollowRow *pageScenarioFollowing::addFollowRow(const FollowEntry &entry)
{
    const QString program = programName(entry.path);
    const auto hasRow = [&program](const FollowRow *row) { return programName(row->path()) == program; };
    const auto isSame = [&program](const FollowEntry &each) { return programName(each.path) == program; };
    if (std::any_of(m_rows.begin(), m_rows.end(), hasRow) || std::any_of(m_unshown.begin(), m_unshown.end(), isSame))
        return nullptr;
    auto *row = new FollowRow(entry, this);
    connect(row, &FollowRow::sceneChosen, this, [this] { setWaiting(true); });
    connect(row->trashButton(), &QPushButton::clicked, this, [this, row] { deleteRow(row); });
    m_rows.push_back(row);
    addRow(row);
    return row;
}

void pageScenarioFollowing::deleteRow(FollowRow *row)
{
    std::erase(m_rows, row);
    removeRow(row);
    setWaiting(true);
}

/// A file may hold more programs than anybody scrolls through; the later ones are followed and stored all the same.
void pageScenarioFollowing::loadRows()
{
    for (const FollowEntry &entry : loadFollowList()) {
        if (m_rows.size() < kShownRows)
            addFollowRow(entry);
        else
            m_unshown.push_back(entry);
    }
}

void pageScenarioFollowing::save()
{
    m_saved = m_unshown;
    for (const FollowRow *row : m_rows)
        m_saved.push_back(row->entry());
    rebuildTable();
    showStored(saveFollowList(m_saved), QStringLiteral("scenceSetting.ini"));
    if (!m_unshown.empty() && notice().isEmpty())
        showNotice(QObject::tr("%1 more programs of the file are followed and not shown.").arg(m_unshown.size()));
}

/// Scenes are told by their displayed names, so the table is made anew in every language; always from what was saved.
void pageScenarioFollowing::rebuildTable()
{
    QHash<QString, QString> table;
    for (const FollowEntry &entry : m_saved) {
        if (const FollowScene *scene = followSceneAt(entry.scene))
            table.insert(programName(entry.path), QObject::tr(scene->name));
    }
    m_follower.setFollowTable(table);
}

void pageScenarioFollowing::updateControlText()
{
    ListPage::updateControlText();
    for (FollowRow *row : m_rows)
        row->updateControlText();
    rebuildTable();
}
