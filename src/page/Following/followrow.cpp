#include "page/Following/followrow.h"

#include <algorithm>

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "controls/labelled.h"
#include "controls/metrics.h"
#include "following/followscenes.h"
#include "page/engine/dropdown.h"
#include "page/engine/listpage.h"

namespace {

constexpr int kColumnWidth = 220;
constexpr int kFieldMargin = 8; // what a line edit leaves free on both sides of its text

/// A file may name a program with line breaks and the like; a row is one line.
QString oneLine(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar each) { return !each.isPrint(); }, QChar(QLatin1Char(' ')));
    return text;
}

} // namespace

FollowRow::FollowRow(QWidget *parent)
    : QFrame(parent), m_name(new QLabel(this)), m_pathField(new QLineEdit(this)), m_scenes(makeDropDown(this)),
      m_trash(makeTrashButton(this))
{
    setObjectName(QStringLiteral("listRow"));
    m_name->setTextFormat(Qt::PlainText);
    m_name->setFixedWidth(kColumnWidth);
    m_pathField->setObjectName(QStringLiteral("path"));
    m_pathField->setEnabled(false);
    m_scenes->setFixedWidth(kColumnWidth);
    layOut();
    updateControlText();
    connect(m_scenes, &QComboBox::currentIndexChanged, this, [this](int scene) { Q_EMIT sceneChosen(m_index, scene); });
    connect(m_trash, &QPushButton::clicked, this, [this] { Q_EMIT deleteWanted(m_index); });
}

void FollowRow::layOut()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(metrics::kInset, metrics::kGap, metrics::kInset, metrics::kGap);
    row->setSpacing(metrics::kGap);
    row->addWidget(m_name);
    row->addWidget(m_pathField, 1);
    row->addWidget(m_scenes);
    row->addWidget(m_trash);
}

void FollowRow::showEntry(int index, const FollowEntry &entry)
{
    m_index = index;
    const QSignalBlocker blocker(m_scenes);
    m_scenes->setCurrentIndex(entry.scene);
    if (m_path == entry.path)
        return;
    m_path = entry.path;
    showNames();
}

void FollowRow::showNames()
{
    const QString program = programName(m_path);
    const QString path = QDir::toNativeSeparators(m_path);
    m_name->ensurePolished(); // for its font
    m_name->setText(m_name->fontMetrics().elidedText(oneLine(program), Qt::ElideMiddle, kColumnWidth));
    m_name->setToolTip(program);
    m_pathField->setToolTip(path);
    m_pathField->setAccessibleName(program);
    showPath();
    m_scenes->setAccessibleName(program);
    m_trash->setAccessibleName(labelled(program, m_trash->toolTip()));
}

/// As much of the path as there is room for, without what is in its middle.
void FollowRow::showPath()
{
    m_pathField->ensurePolished();
    const int room = m_pathField->width() - kFieldMargin;
    m_pathField->setText(m_pathField->fontMetrics().elidedText(oneLine(m_pathField->toolTip()), Qt::ElideMiddle, room));
    m_pathField->setCursorPosition(0);
}

void FollowRow::resizeEvent(QResizeEvent *event)
{
    QFrame::resizeEvent(event);
    showPath();
}

void FollowRow::updateControlText()
{
    const QSignalBlocker blocker(m_scenes);
    const int chosen = std::max(0, m_scenes->currentIndex());
    m_scenes->clear();
    for (const FollowScene &scene : followScenes())
        m_scenes->addItem(QObject::tr(scene.name));
    m_scenes->setCurrentIndex(chosen);
    m_trash->setToolTip(QObject::tr("Delete"));
    showNames();
}
