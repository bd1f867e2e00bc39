#include "page/Scene/customhalf.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include <QScrollArea>
#include <QVBoxLayout>

#include "controls/metrics.h"
#include "page/Scene/scenepicture.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"
#include "page/engine/picturestage.h"
#include "page/engine/scrollarea.h"

CustomHalf::CustomHalf(QWidget *parent) : QWidget(parent)
{
    QScrollArea *scroll = makeScrollArea(this);
    auto *content = new QWidget(scroll->viewport());
    content->setObjectName(QStringLiteral("customArea"));
    m_controls = new QVBoxLayout(content);
    m_controls->setContentsMargins(0, 0, metrics::kGap, 0);
    m_controls->setSpacing(metrics::kRowGap);
    fillScrollArea(scroll, content);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kRowGap); // the lower edge of what scrolls is then between two rows
    column->addWidget(scroll, 1);
}

void CustomHalf::refreshPicture(const std::vector<OptionGroupRow *> &rows)
{
    if (!m_stage) {
        std::vector<OptionGroupRow *> told;
        std::ranges::copy_if(rows, std::back_inserter(told),
                             [](const OptionGroupRow *row) { return OptionWords::hasWords(row->group()); });
        m_stage = new PictureStage(kScenePicture, std::move(told), nullptr, this, PictureStage::Shape::Strip);
        layout()->addWidget(m_stage);
    }
    m_stage->refresh();
}
