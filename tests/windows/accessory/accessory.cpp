#include "accessory.h"

#include <cstdio>
#include <fstream>
#include <sstream>
#include <utility>

Accessory::Accessory(std::filesystem::path folder) : m_folder(std::move(folder))
{
}

bool Accessory::isPluggedIn()
{
    readState();
    return m_isPluggedIn;
}

unsigned Accessory::open()
{
    if (!isPluggedIn())
        return 0;
    record("open");
    return m_handle;
}

bool Accessory::write(unsigned handle, std::span<const unsigned char> report)
{
    readState();
    if (m_writesLeft > 0 && --m_writesLeft == 0)
        unplug();
    const bool taken = m_isPluggedIn && !m_isFailing && handle == m_handle;
    std::string line;
    for (const unsigned char byte : report) {
        char text[4];
        std::snprintf(text, sizeof text, "%02X ", byte);
        line += text;
    }
    if (!line.empty())
        line.pop_back();
    record(line + (taken ? "" : " failed"));
    return taken;
}

void Accessory::readState()
{
    if (m_folder.empty()) {
        m_isPluggedIn = false;
        return;
    }
    std::ifstream file(m_folder / "state.txt");
    std::string state;
    std::getline(file, state);
    if (state == m_state)
        return;
    m_state = state;
    std::istringstream words(state);
    std::string word;
    words >> word;
    m_isFailing = word == "failing";
    m_writesLeft = 0;
    if (word == "vanish")
        words >> m_writesLeft;
    m_isPluggedIn = true;
    if (word == "absent")
        unplug();
}

void Accessory::unplug()
{
    m_isPluggedIn = false;
    ++m_handle;
}

void Accessory::record(const std::string &line) const
{
    if (!m_folder.empty())
        std::ofstream(m_folder / "happened.txt", std::ios::app | std::ios::binary) << line + '\n';
}
