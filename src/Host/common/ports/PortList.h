#pragma once

#include "Host/common/ports/PortRow.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Host {

// The inputs or the outputs that the desk has ever met. A row keeps its index for as long as the list is kept; a port
// that is absent keeps its row and its settings, and takes them up again when it comes back. For one thread at a time.
class PortList {
public:
    // As many as an event can name. A newcomer to a full list takes the row of the last absent port that has the
    // settings of a new one; without such a row it is left out. The last places are kept for built-in ports.
    static constexpr std::size_t MAX_ROWS = 128;
    static constexpr std::size_t KEPT_FOR_BUILT_IN = 2;
    // No file of port names is sensibly larger; of a larger one nothing is taken.
    static constexpr std::size_t MAX_FILE_SIZE = 1 << 20;
    // The number of the copy that no port of the system has, for ports that the desk has in itself.
    static constexpr int BUILT_IN = 0;

    // [any] Takes over what there is now: these are available, all others are not, and newcomers get rows at the end.
    // True if anything in the list has changed.
    bool update(const std::vector<MidiPortId>& present);

    // [any] False, and nothing done, without such a row.
    bool setSettings(std::size_t index, const PortSettings& settings);

    // [any] The same for the switch alone, and only until the list is read again: its text keeps what was there before.
    [[nodiscard]] bool switchForNow(std::size_t index, bool enabled);

    const std::vector<PortRow>& rows() const { return m_rows; }

    // [any] One line a row: enabled (0 or 1), keeps channels (0 or 1), the mask of channels (four hexadecimal digits),
    // the number of the copy, and to the end of the line the name, in which "\" begins "\\", "\n" or "\r".
    std::string toText() const;

    // [any] Replaces all rows by those of a text, none of them available. Lines that make no sense, that name a port
    // for a second time or that are too many are passed over.
    void readText(std::string_view text);

private:
    PortRow* find(const MidiPortId& id);
    PortRow* placeFor(const MidiPortId& newcomer);

    std::vector<PortRow> m_rows;
};

}
