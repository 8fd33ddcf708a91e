#pragma once

#include "Gui/Utils/widgets/EditBox.h"

#include <cstdint>

namespace Gui {

// The field for typing a number of ppq. It ends, notifying its listener, on Enter, on Escape, on a press outside it,
// and when the focus goes elsewhere. [gui]
class TimeIntervalEdit : public EditBox {
public:
    class Listener {
    public:
        // taken: the user wants the value; false after Escape. byKey: the focus has not gone anywhere yet.
        virtual void editEnded(bool taken, std::int32_t value, bool byKey) = 0;

    protected:
        ~Listener() = default;
    };

    explicit TimeIntervalEdit(Listener& listener) : m_listener(listener) {}

    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

    // Opens over a part of the parent with the caret at the end, and takes the focus and the mouse.
    void open(HWND parent, int x, int y, int width, int height, HFONT font, std::int32_t value);

private:
    void end(bool byKey);

    Listener& m_listener;
    bool m_ending = false;
};

}
