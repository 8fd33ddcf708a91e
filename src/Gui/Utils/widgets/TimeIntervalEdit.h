#pragma once

#include "Gui/Utils/widgets/EditBox.h"

#include <cstdint>

namespace Gui {

// The field in which a number of ppq is typed. It ends, and tells its listener, at Enter, at Escape, at a press beside
// it, and when the focus goes elsewhere. [gui]
class TimeIntervalEdit : public EditBox {
public:
    class Listener {
    public:
        // taken: the user wants the value; not after Escape. byKey: the focus is nowhere yet.
        virtual void editEnded(bool taken, std::int32_t value, bool byKey) = 0;

    protected:
        ~Listener() = default;
    };

    explicit TimeIntervalEdit(Listener& listener) : m_listener(listener) {}

    LRESULT wndProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override;

    // Opens over a part of the parent with the caret at the end, and takes focus and mouse.
    void open(HWND parent, int x, int y, int width, int height, HFONT font, std::int32_t value);

private:
    void end(bool byKey);

    Listener& m_listener;
    bool m_ending = false;
};

}
