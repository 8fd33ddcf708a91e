#pragma once

#include "Host/common/ports/PortRow.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

// All inputs, or all outputs, that the desk has ever met. A row keeps its index as long as the list is kept; an absent
// port keeps its row and its settings, which apply again when it returns. For one thread at a time.
class PortList {
public:
    // As many as an event can name. A newcomer to a full list takes the row of the last absent port with a new port's
    // settings; without such a row it is left out. The last places are reserved for built-in ports.
    static constexpr std::size_t MAX_ROWS = 128;
    static constexpr std::size_t KEPT_FOR_BUILT_IN = 2;
    // No sensible file of port names is larger; a larger one is ignored.
    static constexpr std::size_t MAX_FILE_SIZE = 1 << 20;
    // The copy number of ports built into the desk, which no port of the system has.
    static constexpr int BUILT_IN = 0;

    // [any] Takes over the present ports: these become available, all others unavailable, and newcomers get rows at the
    // end. True if anything in the list has changed.
    bool update(const std::vector<MidiPortId>& present);

    // [any] Does nothing and returns false if there is no such row.
    bool setSettings(std::size_t index, const PortSettings& settings);

    // [any] Sets the switch alone, and only until the list is read again: its text keeps the old value.
    [[nodiscard]] bool switchForNow(std::size_t index, bool enabled);

    const std::vector<PortRow>& rows() const { return m_rows; }

    // [any] One line per row: enabled (0 or 1), keeps channels (0 or 1), the mask of channels (four hexadecimal
    // digits), the number of the copy, and up to the end of the line the name, in which "\" begins "\\", "\n" or "\r".
    std::string toText() const;

    // [any] Replaces all rows by those of a text, all of them unavailable. Skips lines that make no sense, repeat a
    // port or are too many.
    void readText(std::string_view text);

private:
    PortRow* find(const MidiPortId& id);
    PortRow* placeFor(const MidiPortId& newcomer);

    std::vector<PortRow> m_rows;
};

}
