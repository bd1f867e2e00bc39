#include "page/Office/officepictures.h"

#include <QObject>
#include <QPainter>

#include "controls/gameoverlays.h"
#include "controls/palette.h"
#include "controls/screenguides.h"
#include "page/Office/papersize.h"

using namespace screenguides;

namespace officepictures {

namespace {

/// What is on is drawn through, what is only pointed at is dashed.
void takePen(QPainter &painter, const PictureValues &values)
{
    painter.setPen(
        QPen(QColor(Palette::kMint), values.isPreview() ? 1.5 : 2, values.isPreview() ? Qt::DashLine : Qt::SolidLine));
    painter.setBrush(Qt::NoBrush);
}

void paintDesktop(QPainter &painter, const QRectF &screen, const PictureValues &)
{
    drawDesktop(painter, screen);
}

void paintPaper(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    takePen(painter, values);
    static constexpr QSize kSheets[] = {{210, 297}, {176, 250}, {125, 176}};
    const int option = values(Command::Paper, 0);
    if (option >= 1 && option <= 3)
        drawSheet(painter, screen, kSheets[option - 1]);
    else if (option == 4)
        drawSheet(painter, screen, storedPaper());
}

void paintAlignment(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    takePen(painter, values);
    static constexpr QSize kParts[] = {{1, 1}, {2, 2}, {3, 2}, {3, 3}};
    const int option = values(Command::Alignment, 0);
    if (option >= 1 && option <= 3)
        drawGrid(painter, screen, kParts[option].width(), kParts[option].height());
}

void paintRuler(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    takePen(painter, values);
    if (values.is(Command::Ruler, 1))
        drawRuler(painter, screen);
    else if (values.is(Command::Ruler, 2))
        drawAngleRuler(painter, screen);
}

void paintAlignmentAid(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    takePen(painter, values);
    if (values.is(Command::AlignmentAid, 1))
        drawAlignmentAid(painter, screen);
}

void paintComposition(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    takePen(painter, values);
    const int option = values(Command::Composition, 0);
    if (option == 4)
        return drawGrid(painter, screen, 3, 3);
    static constexpr void (*kDraw[])(QPainter &, const QRectF &) = {nullptr,           drawTriangle, drawFrame,
                                                                    drawGoldenSection, nullptr,      drawRound};
    if (option >= 0 && option <= 5 && kDraw[option])
        kDraw[option](painter, screen);
}

void paintRest(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    if (values(Command::RestTimer, 0) != 0)
        gameoverlays::drawReadout(painter, screen, 3, QObject::tr("Time to rest your eyes for a while."));
}

void paintDualMode(QPainter &painter, const QRectF &screen, const PictureValues &values)
{
    if (!values.is(Command::AiDualMode, 1))
        return;
    takePen(painter, values);
    drawGrid(painter, screen, 2, 1);
    QRectF right = screen;
    right.setLeft(screen.center().x());
    painter.fillRect(right, QColor(255, 190, 90, 60));
}

} // namespace

const PanelPicture kPaper{paintDesktop, paintPaper};
const PanelPicture kAlignment{paintDesktop, paintAlignment};
const PanelPicture kRuler{paintDesktop, paintRuler};
const PanelPicture kAlignmentAid{paintDesktop, paintAlignmentAid};
const PanelPicture kComposition{paintDesktop, paintComposition};
const PanelPicture kRest{paintDesktop, paintRest};
const PanelPicture kDualMode{paintDesktop, paintDualMode};

} // namespace officepictures
