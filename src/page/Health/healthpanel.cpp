#include "page/Health/healthpanel.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QStyle>

#include "controls/announcer.h"
#include "controls/captionlabel.h"
#include "controls/dash.h"
#include "controls/metrics.h"
#include "controls/sharedfonts.h"
#include "controls/timecurve.h"
#include "ddc_protocol/linkrecorder.h"
#include "ddc_protocol/linkrecords.h"
#include "page/engine/boundtexts.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/plainbutton.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kRefreshPause{250};
constexpr int kLongestGap = 12;    // spans: a minute without a request is a gap in the curve
constexpr int kErrorsHeight = 136; // three of them; the others scroll
constexpr int kErrorHeight = 40;
constexpr int kErrorTimeWidth = 62;
constexpr int kErrorTextWidth = 250;

QVBoxLayout *makeColumn(QWidget *parent, int spacing)
{
    auto *column = new QVBoxLayout(parent);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing);
    return column;
}

/// A path that a line may end in, also within a long name: nothing of it is cut off.
QString breakable(QString path)
{
    static const QRegularExpression kPlaces(QStringLiteral(R"(([\\/_-]))"));
    return path.replace(kPlaces, QStringLiteral("\\1\u200b"));
}

} // namespace

HealthPanel::HealthPanel(BoundTexts &texts, CommandQueue &queue, QWidget *parent)
    : QWidget(parent), m_texts(texts), m_reading(queue)
{
    connect(&m_reading, &EverythingRead::progressed, this, [this] {
        if (!m_isBuilt)
            return;
        say(m_reading.summary());
        fillButtons();
    });
}

HealthPanel::~HealthPanel()
{
    linkRecords.setObserver({});
}

void HealthPanel::build()
{
    m_isBuilt = true;
    auto *column = makeColumn(this, 12);
    auto *heading = new QHBoxLayout;
    heading->addWidget(makeLabel(QStringLiteral("note"), 0,
                                 LABEL("How the link to the monitor has been since the "
                                       "program started.")),
                       1);
    m_monitors = makeDropDown(this);
    m_monitors->setObjectName(QStringLiteral("healthMonitors"));
    m_monitors->setFixedSize(220, metrics::kControlHeight);
    m_texts.bind(LABEL("Machine Select"), [this](const QString &text) { m_monitors->setAccessibleName(text); });
    connect(m_monitors, &QComboBox::currentIndexChanged, this, &HealthPanel::refresh);
    heading->addWidget(m_monitors);
    column->addLayout(heading);
    column->addWidget(buildTiles());
    column->addWidget(buildCurve());
    column->addWidget(makeLabel(QStringLiteral("healthHeading"), 0, LABEL("Last errors")));
    column->addWidget(buildErrors());
    m_facts = makeLabel(QStringLiteral("note"), 0);
    column->addWidget(m_facts);
    column->addWidget(buildButtons());
    m_result = makeLabel(QStringLiteral("healthResult"), 0);
    column->addWidget(m_result);
}

QLabel *HealthPanel::makeLabel(const QString &name, int pixels, const char *text)
{
    auto *label = new QLabel(this);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(pixels == 0);
    QFont font = noteFont;
    if (pixels > 0)
        font.setPixelSize(pixels);
    label->setFont(font);
    if (text)
        m_texts.bind(text, [label](const QString &translated) { label->setText(translated); });
    return label;
}

QWidget *HealthPanel::buildTiles()
{
    auto *part = new QWidget(this);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    for (int i = 0; i < kHealthFigures; ++i)
        row->addWidget(buildTile(m_tiles[static_cast<std::size_t>(i)], figureCaption(i)), 1);
    return part;
}

QWidget *HealthPanel::buildTile(Tile &tile, const char *caption)
{
    auto *frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("healthTile"));
    frame->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // all of one width, whatever they say
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(16, 10, 8, 10);
    column->setSpacing(2);
    QLabel *const title = makeLabel(QStringLiteral("note"), 13, caption);
    tile.value = makeLabel(QStringLiteral("healthValue"), 26);
    tile.detail = new CaptionLabel(QString(), 13, frame);
    tile.detail->setObjectName(QStringLiteral("note"));
    tile.detail->setFont(noteFont);
    for (QLabel *label : {title, tile.value, tile.detail})
        column->addWidget(label);
    return frame;
}

QWidget *HealthPanel::buildCurve()
{
    auto *frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("healthTile"));
    auto *column = new QVBoxLayout(frame);
    column->setContentsMargins(16, 8, 16, 8);
    column->setSpacing(0);
    column->addWidget(makeLabel(QStringLiteral("note"), 13, LABEL("Answer times, last ten minutes")));
    m_curve = new TimeCurve(LinkRecord::kSpans, frame);
    m_curve->setFont(noteFont);
    column->addWidget(m_curve, 1);
    frame->setFixedHeight(116);
    return frame;
}

QWidget *HealthPanel::buildErrors()
{
    auto *area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFixedHeight(kErrorsHeight);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_texts.bind(LABEL("Last errors"), [area](const QString &text) { area->setAccessibleName(text); });
    auto *content = new QWidget(area);
    content->setObjectName(QStringLiteral("customArea"));
    m_errors = makeColumn(content, 4);
    m_errors->setAlignment(Qt::AlignTop);
    area->setWidget(content);
    return area;
}

QPushButton *HealthPanel::makeButton(const char *label, const QString &name)
{
    return makePlainButton(label, name, m_texts, this);
}

QWidget *HealthPanel::buildButtons()
{
    auto *part = new QWidget(this);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    m_read = makeButton(LABEL("Read everything once"), QStringLiteral("readEverything"));
    m_read->setProperty("waiting", true);
    connect(m_read, &QPushButton::clicked, this, &HealthPanel::onReadPressed);
    QPushButton *const copy = makeButton(LABEL("Copy report"), QStringLiteral("copyReport"));
    connect(copy, &QPushButton::clicked, this, &HealthPanel::onCopyPressed);
    m_record = makeButton(LABEL("Record"), QStringLiteral("record"));
    m_record->setCheckable(true);
    connect(m_record, &QPushButton::toggled, this, &HealthPanel::onRecordToggled);
    for (QPushButton *button : {m_read, copy, m_record})
        row->addWidget(button);
    row->addStretch(1);
    return part;
}

void HealthPanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!m_isBuilt)
        build();
    linkRecords.setObserver([this] { noteRequest(); });
    refresh();
}

void HealthPanel::hideEvent(QHideEvent *event)
{
    linkRecords.setObserver({});
    QWidget::hideEvent(event);
}

/// On the thread of the request.
void HealthPanel::noteRequest()
{
    if (!m_isNoted.exchange(true))
        QMetaObject::invokeMethod(this, &HealthPanel::refreshSoon, Qt::QueuedConnection);
}

void HealthPanel::refreshSoon()
{
    platform::desk().clock().callLater(kRefreshPause, this, [this] {
        m_isNoted = false;
        refresh();
    });
}

std::size_t HealthPanel::chosen() const
{
    return static_cast<std::size_t>(std::max(m_monitors->currentIndex(), 0));
}

void HealthPanel::refresh()
{
    if (!m_isBuilt || !isVisible())
        return;
    fillMonitors();
    const std::size_t index = chosen();
    const bool isThere = index < monitorList.size();
    const LinkRecord record = isThere ? linkRecords.recordOf(monitorList[index].identity) : LinkRecord();
    const QDateTime now = platform::desk().clock().now();
    for (int i = 0; i < kHealthFigures; ++i) {
        const HealthFigure figure = healthFigure(i, index, record);
        const Tile &tile = m_tiles[static_cast<std::size_t>(i)];
        showOrDash(tile.value, figure.value);
        tile.detail->setText(figure.detail);
        tile.value->setProperty("bad", figure.isBad);
        tile.value->style()->polish(tile.value); // the style looks at the property only now
    }
    fillCurve(record, now);
    fillErrors(record);
    m_facts->setText(isThere ? monitorFacts(index) : QObject::tr("no monitor"));
    fillButtons();
}

/// The monitor in use first chosen; there is nothing to choose with one.
void HealthPanel::fillMonitors()
{
    const QSignalBlocker quiet(m_monitors);
    QStringList titles;
    for (std::size_t i = 0; i < monitorList.size(); ++i)
        titles += monitorTitle(i);
    QStringList shown;
    for (int i = 0; i < m_monitors->count(); ++i)
        shown += m_monitors->itemText(i);
    if (titles != shown) {
        m_monitors->clear();
        m_monitors->addItems(titles);
        m_monitors->setCurrentIndex(currentMonitorIndex);
    }
    m_monitors->setVisible(titles.size() > 1);
}

void HealthPanel::fillCurve(const LinkRecord &record, const QDateTime &now)
{
    std::vector<TimeCurve::Point> points;
    int highest = 0;
    for (const LatencySpan &span : record.latencies(now)) {
        points.push_back({static_cast<int>(LinkRecord::spanOf(now) - span.number), span.worst});
        highest = std::max(highest, span.worst);
    }
    m_curve->setTexts(QObject::tr("10 min"), QObject::tr("now"),
                      points.empty() ? QString() : QObject::tr("%1 ms").arg(highest));
    m_curve->setPoints(std::move(points), kLongestGap);
    m_curve->setAccessibleName(QObject::tr("Answer times, last ten minutes"));
}

void HealthPanel::fillErrors(const LinkRecord &record)
{
    while (QLayoutItem *item = m_errors->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const LinkError &error : record.errors()) {
        auto *row = new QFrame;
        row->setObjectName(QStringLiteral("healthError"));
        row->setMinimumHeight(kErrorHeight);
        auto *cells = new QHBoxLayout(row);
        cells->setContentsMargins(16, 2, 8, 2);
        cells->setSpacing(16);
        QLabel *const time = makeLabel(QStringLiteral("note"), 13);
        time->setText(error.until.toString(QStringLiteral("hh:mm:ss")));
        time->setFixedWidth(kErrorTimeWidth);
        QLabel *const text = makeLabel(QStringLiteral("healthHeading"), 0);
        text->setText(errorText(error));
        text->setFixedWidth(kErrorTextWidth);
        QLabel *const advice = makeLabel(QStringLiteral("note"), 0);
        advice->setText(errorAdvice(error));
        cells->addWidget(time);
        cells->addWidget(text);
        cells->addWidget(advice, 1);
        m_errors->addWidget(row);
    }
    if (!record.errors().empty())
        return;
    QLabel *const none = makeLabel(QStringLiteral("note"), 0);
    none->setText(QObject::tr("None."));
    m_errors->addWidget(none);
}

void HealthPanel::fillButtons()
{
    m_read->setText(m_reading.isRunning() ? QObject::tr("Cancel") : QObject::tr("Read everything once"));
    const bool isInUse = chosen() < monitorList.size() && chosen() == currentMonitorIndex; // questions go to no other
    m_read->setEnabled(isInUse || m_reading.isRunning());
    const QSignalBlocker quiet(m_record);
    if (m_record->isChecked() && !linkRecorder.isRecording())
        say(linkRecorder.error()); // it has stopped by itself
    m_record->setChecked(linkRecorder.isRecording());
}

void HealthPanel::say(const QString &text)
{
    m_result->setText(text);
    Announcer::say(text);
}

void HealthPanel::onReadPressed()
{
    if (m_reading.isRunning())
        m_reading.cancel();
    else
        m_reading.start();
}

void HealthPanel::onCopyPressed()
{
    const std::size_t index = chosen();
    if (index >= monitorList.size())
        return;
    const LinkRecord record = linkRecords.recordOf(monitorList[index].identity);
    QGuiApplication::clipboard()->setText(healthReport(index, record, platform::desk().clock().now()));
    say(QObject::tr("The report is on the clipboard. It names no files, programs or users."));
}

void HealthPanel::onRecordToggled(bool on)
{
    if (on && !linkRecorder.start()) {
        fillButtons();
        return say(QObject::tr("The recording could not be begun: %1").arg(linkRecorder.error()));
    }
    if (!on)
        linkRecorder.stop();
    const QString path = breakable(QDir::toNativeSeparators(QDir::current().absoluteFilePath(linkRecorder.fileName())));
    say(on ? QObject::tr("What is asked and answered is recorded in %1").arg(path)
           : QObject::tr("%1 requests are recorded in %2").arg(linkRecorder.requests()).arg(path));
}
