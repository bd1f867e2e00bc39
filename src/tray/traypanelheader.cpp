#include "tray/traypanelheader.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "controls/captionlabel.h"
#include "controls/dash.h"
#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"

namespace {

constexpr int kNamePixels = 17;
constexpr int kStatePixels = 14;

} // namespace

TrayPanelHeader::TrayPanelHeader(QVBoxLayout *column, QWidget *panel) : QObject(panel)
{
    auto *header = new QWidget(panel);
    m_name = new CaptionLabel(QString(), kNamePixels, header);
    m_name->setObjectName(QStringLiteral("title"));
    dressText(m_name, {Palette::kText});
    m_state = new CaptionLabel(QString(), kStatePixels, header);
    m_state->setObjectName(QStringLiteral("note"));
    m_dot = new QLabel(QStringLiteral("●"), header);
    m_dot->setObjectName(QStringLiteral("panelDot"));
    m_sceneMark = new ValueMark(header);
    auto *grid = new QGridLayout(header);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(metrics::kLineGap);
    grid->addWidget(m_name, 0, 0);
    grid->addWidget(m_dot, 0, 1, Qt::AlignRight);
    grid->addWidget(m_state, 1, 0);
    grid->addWidget(m_sceneMark, 1, 1, Qt::AlignRight | Qt::AlignVCenter);
    grid->setColumnStretch(0, 1);
    column->addWidget(header);
    auto *line = new QFrame(panel);
    line->setObjectName(QStringLiteral("line"));
    line->setFixedHeight(1);
    column->addWidget(line);
}

void TrayPanelHeader::showStatus(const MonitorStatus &status)
{
    m_status = status;
    showOrDash(m_name, status.name);
    m_dot->setAccessibleName(status.state);
    m_dot->setStyleSheet(status.isGood ? Palette::styled(u"color: @signal;") : Palette::styled(u"color: @error;"));
    showState();
}

void TrayPanelHeader::showScene(const QString &words, Mark mark)
{
    m_sceneWords = words;
    m_sceneMark->setMark(mark);
    showState();
}

void TrayPanelHeader::showState()
{
    m_state->setText(QStringLiteral("%1 · %2").arg(m_status.state, m_sceneWords));
}

QString TrayPanelHeader::text() const
{
    return QStringLiteral("%1 %2").arg(m_name->text(), m_state->text());
}
