#include "Host/common/ports/PortList.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace Host {

namespace {

// A loopback inside the computer: what is sent to such a port comes in again, and would go round through the desk
// endlessly.
constexpr std::string_view LOOP_NAME = "Midi Through";

PortSettings newcomerSettings(const MidiPortId& id) {
    PortSettings settings;
    settings.enabled = id.name.find(LOOP_NAME) == std::string::npos;
    return settings;
}

std::size_t maxRowsFor(const MidiPortId& id) {
    return id.copy == PortList::BUILT_IN ? PortList::MAX_ROWS : PortList::MAX_ROWS - PortList::KEPT_FOR_BUILT_IN;
}

std::string escaped(const std::string& name) {
    std::string text;
    for (const char letter : name) {
        if (letter == '\\')
            text += "\\\\";
        else if (letter == '\n')
            text += "\\n";
        else if (letter == '\r')
            text += "\\r";
        else
            text += letter;
    }
    return text;
}

std::string unescaped(std::string_view text) {
    std::string name;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\\' || i + 1 == text.size()) {
            name += text[i];
            continue;
        }
        const char kind = text[++i];
        name += kind == 'n' ? '\n' : kind == 'r' ? '\r' : kind;
    }
    return name;
}

// Takes the number up to the next blank off the line. False if there is none or it is outside the limits.
bool takeNumber(std::string_view& line, int base, int lowest, int highest, int& number) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string_view::npos)
        return false;
    const char* end = line.data() + blank;
    const auto result = std::from_chars(line.data(), end, number, base);
    if (result.ec != std::errc() || result.ptr != end || number < lowest || number > highest)
        return false;
    line.remove_prefix(blank + 1);
    return true;
}

bool readRow(std::string_view line, PortRow& row) {
    constexpr int MAX_COPY = 1000;
    int enabled = 0;
    int keepsChannels = 0;
    int channels = 0;
    if (!takeNumber(line, 10, 0, 1, enabled) || !takeNumber(line, 10, 0, 1, keepsChannels) ||
        !takeNumber(line, 16, 0, PortSettings::ALL_CHANNELS, channels) ||
        !takeNumber(line, 10, PortList::BUILT_IN, MAX_COPY, row.id.copy) || line.empty())
        return false;
    row.settings = {enabled == 1, keepsChannels == 1, static_cast<std::uint16_t>(channels)};
    row.id.name = unescaped(line);
    return true;
}

}

PortRow* PortList::find(const MidiPortId& id) {
    const auto row = std::find_if(m_rows.begin(), m_rows.end(), [&id](const PortRow& r) { return r.id == id; });
    return row == m_rows.end() ? nullptr : &*row;
}

PortRow* PortList::placeFor(const MidiPortId& newcomer) {
    if (m_rows.size() < maxRowsFor(newcomer))
        return &m_rows.emplace_back();
    const auto row = std::find_if(m_rows.rbegin(), m_rows.rend(), [](const PortRow& r) {
        return !r.available && r.id.copy != BUILT_IN && r.settings == newcomerSettings(r.id);
    });
    return row == m_rows.rend() ? nullptr : &*row;
}

bool PortList::update(const std::vector<MidiPortId>& present) {
    const std::vector<PortRow> before = m_rows;
    for (PortRow& row : m_rows)
        row.available = false;
    // Ports that already have a row go first, so that none of them loses it to a newcomer.
    std::vector<MidiPortId> newcomers;
    for (const MidiPortId& id : present) {
        if (PortRow* row = find(id))
            row->available = true;
        else
            newcomers.push_back(id);
    }
    for (const MidiPortId& id : newcomers)
        if (PortRow* row = placeFor(id))
            *row = {id, newcomerSettings(id), true, std::nullopt};
    return m_rows != before;
}

bool PortList::setSettings(std::size_t index, const PortSettings& settings) {
    if (index >= m_rows.size())
        return false;
    m_rows[index].settings = settings;
    return true;
}

bool PortList::switchForNow(std::size_t index, bool enabled) {
    if (index >= m_rows.size())
        return false;
    PortRow& row = m_rows[index];
    if (!row.keptEnabled)
        row.keptEnabled = row.settings.enabled;
    row.settings.enabled = enabled;
    return true;
}

std::string PortList::toText() const {
    std::string text;
    for (const PortRow& row : m_rows) {
        char numbers[32];
        std::snprintf(numbers, sizeof(numbers), "%d %d %04x %d ",
                      row.keptEnabled.value_or(row.settings.enabled) ? 1 : 0, row.settings.keepsChannels ? 1 : 0,
                      unsigned{row.settings.channels}, row.id.copy);
        text += numbers + escaped(row.id.name) + "\n";
    }
    return text;
}

void PortList::readText(std::string_view text) {
    m_rows.clear();
    if (text.size() > MAX_FILE_SIZE)
        return;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        PortRow row;
        if (readRow(line, row) && !find(row.id) && m_rows.size() < maxRowsFor(row.id))
            m_rows.push_back(row);
    }
}

}
