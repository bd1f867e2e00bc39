#include "page/Office/pageoffice.h"

#include <QHBoxLayout>
#include <QSpinBox>

#include "controls/captionlabel.h"
#include "controls/desktoptoast.h"
#include "controls/dress.h"
#include "controls/metrics.h"
#include "controls/palette.h"
#include "ddc_protocol/commandqueue.h"
#include "ddc_protocol/devicestate.h"
#include "page/Office/officetable.h"
#include "page/Office/papersize.h"
#include "page/engine/labels.h"
#include "page/engine/numberfield.h"
#include "page/engine/optionbutton.h"
#include "platform/desk.h"

namespace {

constexpr int kSmallestPaper = 10; // mm
constexpr int kLargestPaper = 0x7FFF;
constexpr int kHeightFlag = 0x8000; // tells the height from the width, which share a command
constexpr platform::milliseconds kReminderShown{10000};

} // namespace

PageOffice::PageOffice(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("PageOffice"), OwnList::None, queue, parent), m_toast(std::make_unique<DesktopToast>())
{
    buildPanels(officePanels());
    afterSending(Command::Paper, [this](int) { showPaperSize(); });
    connect(&queue.values(), &ValueWatch::changed, this, [this](Command command) {
        if (command == Command::RestTimer)
            followRestTimer();
    });
    connect(&m_reminder, &RestReminder::timeIsUp, this, &PageOffice::remind);
}

PageOffice::~PageOffice() = default;

QWidget *PageOffice::buildPart(const char *)
{
    m_paperSize = new QWidget(this);
    for (const auto &[field, name] : {std::pair(&m_width, "paperWidth"), {&m_height, "paperHeight"}}) {
        *field = makeNumberField(QLatin1String(name), QStringLiteral(" mm"), m_paperSize);
        (*field)->setRange(kSmallestPaper, kLargestPaper);
    }
    auto *row = new QHBoxLayout(m_paperSize);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(metrics::kGap);
    for (const auto &[field, label] : {std::pair(m_width, LABEL("Width")), std::pair(m_height, LABEL("Height"))}) {
        auto *caption = new CaptionLabel(QString(), 15, m_paperSize);
        dressText(caption, {Palette::kSoft});
        texts().bind(label, [caption, spin = field](const QString &text) {
            caption->setText(text);
            spin->setAccessibleName(text);
        });
        row->addWidget(caption);
        row->addWidget(field);
        row->addSpacing(metrics::kGap);
    }
    auto *apply = new QPushButton(m_paperSize);
    apply->setObjectName(QStringLiteral("paperApply"));
    texts().bind(LABEL("Apply"), [apply](const QString &text) {
        apply->setText(text);
        dressOptionButton(apply);
    });
    connect(apply, &QPushButton::clicked, this, &PageOffice::sendPaperSize);
    row->addWidget(apply);
    row->addStretch(1);
    const QSize paper = storedPaper();
    m_width->setValue(paper.width());
    m_height->setValue(paper.height());
    return m_paperSize;
}

/// The monitor takes a size by two writes of its office area's command: the width and, with the top bit, the height, in
/// millimetres.
void PageOffice::sendPaperSize()
{
    const int width = m_width->value();
    const int height = m_height->value();
    const bool ok = send(Command::Paper, kCustomPaper) && send(Command::OfficeArea, width) &&
                    send(Command::OfficeArea, height | kHeightFlag);
    showNotice(ok ? QString() : QObject::tr("The monitor did not take the size."));
    if (!ok)
        return;
    showStored(storePaper({width, height}), Unstored::HoldsUntilExit);
    refreshPicture();
}

void PageOffice::showPaperSize()
{
    const int width = static_cast<int>(deviceState.officeMaximumHorizontal);
    const int height = static_cast<int>(deviceState.officeMaximumVertical);
    const bool known = width > 0 && height > 0;
    m_paperSize->setVisible(deviceState.value(Command::Paper) == kCustomPaper && known);
    if (!known)
        return; // the fields keep what they hold
    m_width->setRange(kSmallestPaper, std::max(width, kSmallestPaper));
    m_height->setRange(kSmallestPaper, std::max(height, kSmallestPaper));
}

void PageOffice::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showPaperSize();
    followRestTimer();
}

void PageOffice::followValue(Command command)
{
    if (command == Command::Paper)
        showPaperSize();
}

/// Also while the page is out of sight: the desktop's reminder goes as the monitor's does.
void PageOffice::followRestTimer()
{
    m_reminder.setOption(deviceState.confirmed(Command::RestTimer).value_or(0));
}

void PageOffice::remind()
{
    m_toast->showNote(QObject::tr("Eyeshield Remind"), QObject::tr("Time to rest your eyes for a while."));
    platform::desk().clock().callLater(kReminderShown, m_toast.get(), [this] { m_toast->hide(); });
}
