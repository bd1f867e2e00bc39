#include "page/IO/pageiosetting.h"

#include "controls/dress.h"
#include "controls/palette.h"
#include "controls/picturelabel.h"
#include "controls/sharedfonts.h"
#include "ddc_protocol/devicestate.h"
#include "page/IO/iopictures.h"
#include "page/IO/iotable.h"
#include "page/engine/optiongrouprow.h"
#include "page/engine/optionwords.h"
#include "page/engine/picturestage.h"

namespace {

/// The pictures of the inputs 1 to 5.
constexpr const char *kPreviews[] = {"dp1", "dp2", "type_c", "hdmi1", "hdmi2"};

} // namespace

pageIOSetting::pageIOSetting(CommandQueue &queue, QWidget *parent)
    : PanelPage(QStringLiteral("pageIOSetting"), OwnList::Shown, queue, parent)
{
    buildPanels(ioPanels());
    // Both keep the monitor half awake while it is off, and it does so for one of them only.
    refuseWhen(Command::Cec, [this](int value) { return excludes(Command::QuickBoot, "Quick Boot", value); });
    refuseWhen(Command::QuickBoot, [this](int value) { return excludes(Command::Cec, "CEC", value); });
    afterSending(Command::InputSignal, [this](int) { showPreview(); });
}

bool pageIOSetting::excludes(Command other, const char *label, int value)
{
    const bool excluded = value == 1 && monitorHas(other, 1);
    showNotice(excluded ? alreadyEnabled(label) : QString());
    return excluded;
}

QWidget *pageIOSetting::buildPart(const char *name)
{
    QLabel *part = nullptr;
    if (qstrcmp(name, kPreviewPart) == 0)
        part = m_preview = new PictureLabel(this);
    else
        part = m_inputNow = new QLabel(this);
    part->setFont(noteFont);
    part->setObjectName(QLatin1String(name));
    dressText(part, {Palette::kBright});
    return part;
}

/// The picture of the input stands beside the sockets, so that both are seen as one.
void pageIOSetting::stageBuilt(const PanelSpec &panel, PictureStage &stage)
{
    if (panel.picture == &iopictures::kInput)
        stage.words()->putAbove(m_preview);
}

void pageIOSetting::updateInterfaceData()
{
    PanelPage::updateInterfaceData();
    showInput();
    showPreview();
}

void pageIOSetting::followValue(Command command)
{
    if (command != Command::InputSignal)
        return;
    showInput();
    showPreview();
}

void pageIOSetting::updateControlText()
{
    PanelPage::updateControlText();
    showInput();
}

/// Names the input that the monitor is known to show: choosing another one blanks the picture.
void pageIOSetting::showInput()
{
    const std::optional<int> on = deviceState.confirmed(Command::InputSignal);
    const QPushButton *button = on ? optionGroup(Command::InputSignal)->buttonOf(*on) : nullptr;
    m_inputNow->setText(button ? QObject::tr("On now: %1").arg(button->text()) : QString());
    m_preview->setAccessibleName(m_inputNow->text());
}

void pageIOSetting::showPreview()
{
    const int input = deviceState.value(Command::InputSignal);
    const bool hasPicture = deviceState.isKnown(Command::InputSignal) && input >= 1 && input <= 5;
    m_preview->setVisible(hasPicture);
    if (!hasPicture)
        return;
    const QString picture = QStringLiteral("img/preview/%1.png").arg(QLatin1String(kPreviews[input - 1]));
    m_preview->setPicture(picture);
}
