#include "snapshotreads.h"

namespace {

constexpr SnapshotRead kAudioReads[] = {
    {Command::AudioVolume, true}, {Command::AudioMute, true, true}, {Command::AudioMode, false}};

constexpr SnapshotRead kCareReads[] = {
    {Command::PixelShift, false}, {Command::StillPicture, true},      {Command::DetectionRate, false},
    {Command::StaticIcon, false}, {Command::CareRunning, true, true}, {Command::Taskbar, false},
    {Command::Boundary, false},   {Command::CareDue, true, true},     {Command::CareReminder, true, true},
    {Command::CareMode, false},   {Command::CareIsp, false},          {Command::CareInterval, true},
    {Command::CareNow, true},
};

constexpr SnapshotRead kModelReads[] = {
    {Command::Paper, false}, {Command::Capability, true}, {Command::Firmware, true}};

constexpr SnapshotRead kOfficeReads[] = {
    {Command::Alignment, false},   {Command::Ruler, false},     {Command::AlignmentAid, true, true},
    {Command::Composition, false}, {Command::RestTimer, false},
};

} // namespace

std::span<const SnapshotRead> audioReads()
{
    return kAudioReads;
}

std::span<const SnapshotRead> careReads()
{
    return kCareReads;
}

std::span<const SnapshotRead> modelReads()
{
    return kModelReads;
}

std::span<const SnapshotRead> officeReads()
{
    return kOfficeReads;
}
