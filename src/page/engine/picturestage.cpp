#include "page/engine/picturestage.h"

#include <algorithm>
#include <utility>

#include <QHBoxLayout>
#include <QPainter>

#include "controls/metrics.h"
#include "controls/monitorpicture.h"
#include "ddc_protocol/devicestate.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"

namespace {

constexpr int kStripHeight = 196;
constexpr int kStripPicture = 256; ///< as wide as a monitor of that height is

/// What is drawn as on: never what is only wished, and may be refused.
std::optional<int> monitorValue(Command command)
{
    return deviceState.isKnown(command) ? deviceState.confirmed(command) : std::nullopt;
}

/// What the screen is drawn with: a wish is shown at once, until it is refused.
std::optional<int> wishedValue(Command command)
{
    const ValueState state = deviceState.state(command);
    if (state == ValueState::Unknown || state == ValueState::Refused)
        return monitorValue(command);
    return deviceState.value(command);
}

} // namespace

PictureStage::PictureStage(const PanelPicture &picture, std::vector<OptionGroupRow *> rows, const char *about,
                           QWidget *parent, Shape shape)
    : QWidget(parent), m_spec(picture), m_rows(std::move(rows)), m_picture(new MonitorPicture(this)),
      m_words(new OptionWords(m_rows, shape == Shape::Strip ? OptionWords::Shape::Columns : OptionWords::Shape::Column,
                              this, about))
{
    m_picture->setPainter([this](QPainter &painter, const QRectF &screen) { paint(painter, screen); });
    if (shape == Shape::Strip) {
        setFixedHeight(kStripHeight);
        m_picture->setFixedWidth(kStripPicture);
    }
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, metrics::kGap, 0, 0);
    row->setSpacing(metrics::kBlockGap);
    row->addWidget(m_picture, 3);
    row->addWidget(m_words, shape == Shape::Strip ? 3 : 1);
    connect(m_words, &OptionWords::previewChanged, this, &PictureStage::showPreview);
    showPreview();
}

/// Nobody knows what a number stands for that none of the options has.
std::optional<int> PictureStage::ifOffered(Command command, std::optional<int> value) const
{
    const auto isFor = [command](const OptionGroupRow *row) { return row->group().command == command; };
    const auto offers = [&](const OptionGroupRow *row) { return isFor(row) && row->canShow(*value); };
    const bool isKnown = value && (std::ranges::none_of(m_rows, isFor) || std::ranges::any_of(m_rows, offers));
    return isKnown ? value : std::nullopt;
}

PictureValues PictureStage::values(bool withPreview) const
{
    const auto preview = withPreview ? m_words->preview() : std::nullopt;
    return {[this, preview, withPreview](Command command) -> std::optional<int> {
                if (preview && preview->first == command)
                    return preview->second;
                return ifOffered(command, withPreview ? wishedValue(command) : monitorValue(command));
            },
            preview ? std::optional(preview->first) : std::nullopt};
}

void PictureStage::paint(QPainter &painter, const QRectF &screen) const
{
    m_spec.screen(painter, screen, values(true));
    if (!m_spec.overlay)
        return;
    m_spec.overlay(painter, screen, values(false));
    if (m_words->preview())
        m_spec.overlay(painter, screen, values(true));
}

void PictureStage::tryOut(std::optional<std::pair<Command, int>> value)
{
    m_words->tryOut(value);
}

std::optional<std::pair<Command, int>> PictureStage::preview() const
{
    return m_words->preview();
}

void PictureStage::refresh()
{
    m_words->refresh();
    showPreview();
}

void PictureStage::showPreview()
{
    m_picture->setAccessibleName(QObject::tr("What it looks like"));
    m_picture->setAccessibleDescription(m_words->told());
    m_picture->update();
}
