#pragma once

namespace Backend {

// Which panels the window shows. It outlives the window, but not the desk.
struct ScreenState {
    bool system = true;
    bool help = false;
    bool display = false;
    bool unused[3] = {};
    bool computerInput = false;
    bool control = false;
    bool output = true;
    bool layer = false;
    bool cc = false;
    bool zone = false;
};

static_assert(sizeof(ScreenState) == 12);

}
