#include "snapshotreader.h"

#include <utility>

#include <QDebug>
#include <QProgressDialog>

#include "ddc_protocol/commandtable.h"
#include "ddc_protocol/devicestate.h"
#include "ddc_protocol/transport.h"
#include "platform/desk.h"
#include "platform/ending.h"
#include "snapshotreads.h"

using platform::milliseconds;

namespace {

constexpr int kSceneModeTries = 2;
constexpr milliseconds kSceneModePause{200};
constexpr int kBrokenBlockDelay = 200; // ms

int read(const SnapshotRead &item)
{
    const COMMAND_set_Type row = readRow(item.command);
    return item.logged ? Korvu_GetCommandVal(row, kRetryCount) : Korvu_GetCommandValQuiet(row, kRetryCount);
}

void readGroup(std::span<const SnapshotRead> group, QProgressDialog &progress)
{
    for (const SnapshotRead &item : group) {
        if (platform::programEnds()) // the dialog lets events in
            return;
        const int value = read(item);
        // A switch that was not answered stays unknown rather than turning on.
        deviceState.store(item.command, item.isSwitch && value != -1 ? value != 0 : value);
        progress.setValue(progress.value() + 1);
    }
}

bool readSceneMode()
{
    int mode = -1;
    for (int attempt = 0; attempt < kSceneModeTries; ++attempt) {
        mode = Korvu_GetCommandVal(readRow(Command::SceneMode), kRetryCount);
        if (mode >= 1 && mode <= kHighestSceneMode)
            break;
        qDebug() << "Retry to get scene modem.";
        if (!platform::desk().clock().sleepBeforeRetry(kSceneModePause))
            break;
    }
    deviceState.store(Command::SceneMode, mode);
    qDebug() << "Scenario modem:" << mode;
    return mode >= 1 && mode <= kHighestSceneMode;
}

void readOfficeArea()
{
    std::uint32_t vertical = 0;
    std::uint32_t horizontal = 0;
    Korvu_GetCommandValMax(readRow(Command::OfficeArea), vertical, horizontal);
    deviceState.officeMaximumVertical = vertical;
    deviceState.officeMaximumHorizontal = horizontal;
    qDebug() << "MaxSizeV:" << vertical << "MaxSizeH:" << horizontal;
}

void prepare(QProgressDialog &progress, bool care)
{
    progress.setWindowTitle(QStringLiteral("QUORVEL"));
    progress.setStyleSheet(
        QStringLiteral("QProgressDialog { background-color: rgb(46,47,48);}QProgressDialog QLabel {color: white;}"
                       "QProgressBar {color: white;}"));
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumWidth(360);
    progress.setCancelButton(nullptr); // half a snapshot would be of no use
    progress.setMinimumDuration(0);
    const std::size_t reads =
        audioReads().size() + (care ? careReads().size() : 0) + modelReads().size() + officeReads().size();
    progress.setMaximum(static_cast<int>(reads) + 2); // the block and the office area
    progress.setValue(0);
}

} // namespace

SnapshotReader::SnapshotReader(SearchAfter searchAfter) : m_searchAfter(std::move(searchAfter))
{
}

bool SnapshotReader::readAll() const
{
    qDebug() << "ReadData from device begin ...";
    deviceState.forgetSettings();
    if (!readSceneMode())
        return false;

    const bool care = deviceState.has(Capability::OledPanel);
    QProgressDialog progress(QObject::tr("<font color=white>Getting Disp Dev Infor...</font>"), QString(), 0, 1);
    prepare(progress, care);

    readGroup(audioReads(), progress);
    if (care)
        readGroup(careReads(), progress);
    readSceneBlock(deviceState.value(Command::SceneMode));
    progress.setValue(progress.value() + 1);
    readGroup(modelReads(), progress);
    readOfficeArea();
    progress.setValue(progress.value() + 1);
    readGroup(officeReads(), progress);
    qDebug() << "ReadData end ...";
    return !platform::programEnds();
}

bool SnapshotReader::readSceneBlock(int mode) const
{
    if (mode % 2 != 0) {
        if (mode > 0)
            return false;
        qDebug() << "get buffer error, scenarioMode=" << mode << "buffer len=" << tableReadLength.load();
        return true;
    }
    qDebug() << "readSceneModeData " << mode << "begin...";
    const auto lock = lockTransport(); // nobody else may fill tableBuffer before it is copied
    const std::uint8_t *bytes =
        Korvu_ReadCommandTable(readRow(Command::SceneMode), static_cast<std::uint16_t>(mode), kSceneBlockSize);
    if (!bytes || tableReadLength != kSceneBlockSize) {
        qDebug() << "get cust buffer failed, datelen= " << tableReadLength.load();
        reloadEdidType = kReconnect;
        m_searchAfter(kBrokenBlockDelay);
        return false;
    }
    deviceState.storeSceneBlock(mode, std::span<const std::uint8_t, kSceneBlockSize>(bytes, kSceneBlockSize));
    qDebug() << "readSceneModeData end ...";
    return true;
}
