#include "tray/trayscene.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStandardItemModel>

#include "controls/dash.h"
#include "controls/metrics.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/scenemodes.h"
#include "navigation.h"
#include "page/engine/boundtexts.h"
#include "page/engine/dropdown.h"
#include "page/engine/halfbutton.h"
#include "page/engine/listed.h"
#include "page/engine/optiongrouprow.h"

/// A line that cannot be chosen.
static void addHeading(QComboBox *box, const char *label)
{
    box->addItem(QObject::tr(label));
    auto *model = qobject_cast<QStandardItemModel *>(box->model());
    model->item(box->count() - 1)->setEnabled(false);
}

TrayScene::TrayScene(BoundTexts &texts, QVBoxLayout *column, QWidget *body) : QObject(body), m_scene(makeDropDown(body))
{
    m_scene->setPlaceholderText(kDash);
    m_scene->setMaxVisibleItems(12);
    connect(m_scene, &QComboBox::activated, this,
            [this](int index) { Q_EMIT sceneChosen(m_scene->itemData(index).toInt()); });
    column->addWidget(m_scene);
    column->addWidget(buildHalves(texts, body));
}

QWidget *TrayScene::buildHalves(BoundTexts &texts, QWidget *body)
{
    auto *halves = new QWidget(body);
    m_default = new QPushButton(halves);
    m_custom = new QPushButton(halves);
    for (QPushButton *half : {m_default, m_custom}) {
        half->setProperty("half", true);
        half->setCheckable(true);
        half->setFixedHeight(metrics::kControlHeight);
        texts.bind(half == m_default ? kDefaultLabel : kCustomLabel,
                   [half](const QString &text) { half->setText(text.trimmed()); });
        connect(half, &QPushButton::clicked, this, [this, half] { Q_EMIT halfChosen(half == m_default); });
    }
    QHBoxLayout *row = joinHalves(halves, m_default, m_custom, texts);
    row->setSpacing(0);
    row->setStretch(0, 1);
    row->setStretch(1, 1);
    layInTrack(halves, {m_default, m_custom});
    return halves;
}

void TrayScene::fill()
{
    m_scene->setAccessibleName(QObject::tr("Scene"));
    m_scene->clear();
    for (int family = 0; family < kSceneFamilies; ++family) {
        const auto modes = sceneModesOf(static_cast<SceneFamily>(family), deviceState);
        if (!modes.empty())
            addHeading(m_scene, navigationFamilies()[static_cast<std::size_t>(family)].label);
        for (const SceneMode *mode : modes)
            m_scene->addItem(QObject::tr(mode->label), mode->value);
    }
}

void TrayScene::show(Mark mark)
{
    const int value = deviceState.value(Command::SceneMode);
    const SceneMode *mode = mark != Mark::Unknown ? sceneModeOf(value) : nullptr;
    m_scene->setCurrentIndex(mode ? m_scene->findData(mode->value) : -1);
    QPushButton *half = value % 2 != 0 ? m_default : m_custom;
    checkOnly(*half->group(), mode ? half : nullptr);
    m_words = mode ? listed({QObject::tr(mode->label), half->text()}) : kDash;
    m_scene->setAccessibleDescription(markText(mark));
}

void TrayScene::begin()
{
    m_scene->setFocus(Qt::ActiveWindowFocusReason);
}
