#include "PictureAudioCom/sounduse.h"

#include <utility>

#include "PictureAudioCom/soundanalyzer.h"

void SoundUse::begin()
{
    if (!std::exchange(m_isOn, true))
        ++SoundAnalyzer::instance().m_uses;
}

void SoundUse::end()
{
    if (std::exchange(m_isOn, false) && --SoundAnalyzer::instance().m_uses == 0)
        SoundAnalyzer::instance().stop();
}

bool SoundUse::isAlone() const
{
    return SoundAnalyzer::instance().m_uses == (m_isOn ? 1 : 0);
}
