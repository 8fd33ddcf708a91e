#pragma once

#include "Gui/MirelGuiIF.h"
#include "benchmarks/BenchDesk.h"

#include <windows.h>

#include <memory>

namespace Benchmarks {

// The window of a desk, in a frame of its own, with all its screens showing. It belongs to the thread that creates it.
class BenchWindow {
public:
    explicit BenchWindow(BenchDesk& desk);
    ~BenchWindow();
    BenchWindow(const BenchWindow&) = delete;
    BenchWindow& operator=(const BenchWindow&) = delete;

    Gui::MirelGuiIF& gui() { return *m_gui; }
    HWND handle() { return m_gui->getWindowHandle(); }
    HWND frame() { return m_frame; }

    // Dispatches the waiting messages.
    void pump();

    // Dispatches messages until the desk and its log have finished.
    void pumpUntilIdle();

private:
    BenchDesk& m_desk;
    HWND m_frame = nullptr;
    std::unique_ptr<Gui::MirelGuiIF> m_gui;
};

}
