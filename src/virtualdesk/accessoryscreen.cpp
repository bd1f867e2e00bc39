#include "virtualdesk/accessoryscreen.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <vector>

#include "virtualdesk/accessoryforms.h"
#include "virtualdesk/simulatedaccessory.h"

namespace virtualdesk {

namespace {

constexpr std::chrono::milliseconds kFrameTime{120}; // of an uploaded animation
constexpr double kFullBrightness = 100.0;
constexpr double kDimmest = 0.05; // brightness 0 is dim, not dark

double lightOf(const AccessoryState &state, bool isPlugged)
{
    if (state.lamp == 0 || !isPlugged)
        return 0.0;
    return state.brightness < 0 ? 1.0 : std::clamp(state.brightness / kFullBrightness, kDimmest, 1.0);
}

} // namespace

AccessoryScreen::AccessoryScreen(const SimulatedAccessory &accessory, QWidget *parent)
    : MatrixView(parent), m_accessory(accessory)
{
    m_nextFrame.setInterval(kFrameTime);
    connect(&m_nextFrame, &QTimer::timeout, this, [this] {
        ++m_frame;
        refresh();
    });
}

void AccessoryScreen::hideEvent(QHideEvent *event)
{
    MatrixView::hideEvent(event);
    m_nextFrame.stop(); // nobody sees it
}

void AccessoryScreen::refresh()
{
    const AccessoryState state = m_accessory.state();
    const int form = m_accessory.form();
    const double light = lightOf(state, m_accessory.isPlugged());
    const int frames = uploadedFrames(state.upload, form);
    const bool plays = !state.showsLive && state.upload.isComplete() && frames > 0 && light > 0;
    std::vector<std::int32_t> cells;
    if (state.showsLive) {
        cells = state.liveCells;
    } else if (frames > 0) {
        // While it is still being uploaded the frame that came last is shown.
        const int frame = plays ? m_frame % frames : frames - 1;
        const QByteArray part =
            state.upload.cells.mid(static_cast<qsizetype>(frame) * matrixCells(form), matrixCells(form));
        cells.assign(part.begin(), part.end());
    }
    show(form, cells, light);
    if (!plays || frames == 1 || !isVisible())
        m_nextFrame.stop();
    else if (!m_nextFrame.isActive())
        m_nextFrame.start();
}

int uploadedFrames(const AccessoryUpload &upload, int form)
{
    const int cells = matrixCells(form);
    return cells == 0 ? 0 : static_cast<int>(upload.cells.size()) / cells;
}

} // namespace virtualdesk
