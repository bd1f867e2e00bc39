#include "systemnotices.h"

namespace {

constexpr std::uint32_t kDisplayOn = 1;

bool isDisplaySwitchedOn(const platform::PowerSetting *setting)
{
    return setting && setting->setting == platform::kConsoleDisplayState && setting->length >= sizeof(setting->value) &&
           setting->value == kDisplayOn;
}

std::optional<SystemNotice> powerNotice(const platform::NativeMessage &message)
{
    switch (message.wParam) {
    case platform::kPowerResumeAutomatic:
    case platform::kPowerResumeSuspend:
        return SystemNotice::Woke;
    case platform::kPowerSettingChange:
        if (isDisplaySwitchedOn(reinterpret_cast<const platform::PowerSetting *>(message.lParam)))
            return SystemNotice::DisplayOn;
        break;
    }
    return {};
}

std::optional<SystemNotice> sessionNotice(std::uint64_t event)
{
    if (event == platform::kSessionLock)
        return SystemNotice::Locked;
    return event == platform::kSessionUnlock ? std::optional(SystemNotice::Unlocked) : std::nullopt;
}

} // namespace

std::optional<SystemNotice> systemNoticeOf(const platform::NativeMessage &message)
{
    switch (message.message) {
    case platform::kMessagePowerBroadcast:
        return powerNotice(message);
    case platform::kMessageDisplayChange:
        return SystemNotice::DisplaysChanged;
    case platform::kMessageSessionChange:
        return sessionNotice(message.wParam);
    default:
        return {};
    }
}
