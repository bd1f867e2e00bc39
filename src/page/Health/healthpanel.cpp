#include "page/Health/healthpanel.h"

#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalBlocker>

#include "controls/announcer.h"
#include "controls/metrics.h"
#include "ddc_protocol/displayenumeration.h"
#include "ddc_protocol/linkrecorder.h"
#include "ddc_protocol/linkrecords.h"
#include "page/Health/healtherrors.h"
#include "page/Health/healthfigures.h"
#include "page/Health/healthlabel.h"
#include "page/Health/healthtexts.h"
#include "page/engine/boundtexts.h"
#include "page/engine/dropdown.h"
#include "page/engine/labels.h"
#include "page/engine/pagestyle.h"
#include "page/engine/plainbutton.h"
#include "platform/desk.h"

namespace {

constexpr platform::milliseconds kRefreshPause{250};

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
    dressPage(this);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::kGap);
    auto *heading = new QHBoxLayout;
    heading->addWidget(makeHealthLabel(QStringLiteral("note"), 0,
                                       LABEL("How the link to the monitor has been since the "
                                             "program started."),
                                       m_texts, this),
                       1);
    m_monitors = makeDropDown(this);
    m_monitors->setObjectName(QStringLiteral("healthMonitors"));
    m_monitors->setFixedWidth(220);
    m_texts.bind(LABEL("Machine Select"), [this](const QString &text) { m_monitors->setAccessibleName(text); });
    connect(m_monitors, &QComboBox::currentIndexChanged, this, &HealthPanel::refresh);
    heading->addWidget(m_monitors);
    column->addLayout(heading);
    m_figures = new HealthFigures(m_texts, this);
    column->addWidget(m_figures);
    column->addWidget(makeHealthLabel(QStringLiteral("healthHeading"), 0, LABEL("Last errors"), m_texts, this));
    m_errors = new HealthErrors(m_texts, this);
    column->addWidget(m_errors);
    m_facts = makeHealthLabel(QStringLiteral("note"), 0, this);
    column->addWidget(m_facts);
    column->addWidget(buildButtons());
    m_result = makeHealthLabel(QStringLiteral("healthResult"), 0, this);
    column->addWidget(m_result);
}

QWidget *HealthPanel::buildButtons()
{
    auto *part = new QWidget(this);
    auto *row = new QHBoxLayout(part);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    m_read = makePlainButton(LABEL("Read everything once"), QStringLiteral("readEverything"), m_texts, part);
    m_read->setProperty("waiting", true);
    connect(m_read, &QPushButton::clicked, this, &HealthPanel::onReadPressed);
    QPushButton *const copy = makePlainButton(LABEL("Copy report"), QStringLiteral("copyReport"), m_texts, part);
    connect(copy, &QPushButton::clicked, this, &HealthPanel::onCopyPressed);
    m_record = makePlainButton(LABEL("Record"), QStringLiteral("record"), m_texts, part);
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
    m_figures->fill(index, record, platform::desk().clock().now());
    m_errors->fill(record);
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

void HealthPanel::fillButtons()
{
    m_read->setText(m_reading.isRunning() ? QObject::tr("Cancel") : QObject::tr("Read everything once"));
    const bool isInUse = chosen() < monitorList.size() && chosen() == currentMonitorIndex; // questions go to no other
    allowButton(m_read, isInUse || m_reading.isRunning(),
                QObject::tr("Only the monitor that this tool sets can be read."));
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
