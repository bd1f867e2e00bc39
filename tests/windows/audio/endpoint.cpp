#include "endpoint.h"

#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>
#include <sstream>
#include <utility>

namespace {

constexpr double kAmplitude = 8000;

} // namespace

Endpoint::Endpoint(std::filesystem::path folder) : m_folder(std::move(folder))
{
}

bool Endpoint::isThere()
{
    const std::lock_guard lock(m_mutex);
    read();
    return m_isThere;
}

Playing Endpoint::playing()
{
    const std::lock_guard lock(m_mutex);
    read();
    return m_playing;
}

std::uint32_t Endpoint::failure(const std::string &call)
{
    const std::lock_guard lock(m_mutex);
    read();
    const auto found = m_failures.find(call);
    if (found == m_failures.end() || found->second.times == 0)
        return 0;
    --found->second.times;
    return found->second.result;
}

void Endpoint::record(const std::string &line)
{
    const std::lock_guard lock(m_mutex);
    if (!m_folder.empty())
        std::ofstream(m_folder / "happened.txt", std::ios::app | std::ios::binary) << line + '\n';
}

void Endpoint::countObject(int change)
{
    {
        const std::lock_guard lock(m_mutex);
        m_objects += change;
        if (m_objects != 0)
            return;
    }
    record("gone");
}

void Endpoint::read()
{
    if (m_folder.empty())
        return;
    std::ifstream file(m_folder / "sound.txt");
    m_isThere = file.is_open();
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    if (text == m_text)
        return;
    m_text = text;
    m_playing = {};
    m_failures.clear();
    std::istringstream words(text);
    for (std::string line; std::getline(words, line);) {
        std::istringstream values(line);
        std::string word;
        std::string call;
        values >> word;
        if (word == "rate")
            values >> m_playing.rate;
        else if (word == "channels")
            values >> m_playing.channels;
        else if (word == "packet")
            values >> m_playing.packet;
        else if (word == "tone")
            values >> m_playing.tone;
        else if (word == "integer")
            m_playing.isFloat = false;
        else if (word == "fail" && values >> call) {
            Failure &failure = m_failures[call];
            values >> std::hex >> failure.result;
            if (int times = 0; values >> std::dec >> times)
                failure.times = times;
        }
    }
}

std::vector<std::int16_t> tonePacket(const Playing &playing, unsigned begin)
{
    std::vector<std::int16_t> samples;
    for (unsigned frame = begin; frame < begin + playing.packet; ++frame) {
        const double turns = static_cast<double>(playing.tone) * (frame % playing.rate) / playing.rate;
        const double value = kAmplitude * std::sin(2 * std::numbers::pi * turns);
        samples.insert(samples.end(), playing.channels, static_cast<std::int16_t>(std::lround(value)));
    }
    return samples;
}
