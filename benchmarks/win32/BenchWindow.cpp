#include "benchmarks/win32/BenchWindow.h"

#include "Backend/core/MirelMessageManager.h"

namespace Benchmarks {

BenchWindow::BenchWindow(BenchDesk& desk) : m_desk(desk) {
    constexpr int WIDTH = 640;
    constexpr int HEIGHT = 700;
    m_frame = CreateWindowExA(0, "STATIC", "Benchmark", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, WIDTH,
                              HEIGHT, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    m_gui.reset(desk.mirel().getMessageManager().sendCreateMirelGui(false));
    m_gui->create(m_frame);
    m_gui->initialize();
    m_gui->showHelp(true);
    m_gui->showDisplay(true);
    m_gui->showComputerInput(true);
    m_gui->showControl(true);
    m_gui->showLayer(true);
    m_gui->showCc(true);
    m_gui->showZone(true);
    SetForegroundWindow(m_frame);
    SetFocus(m_gui->getWindowHandle());
    pumpUntilIdle();
}

BenchWindow::~BenchWindow() {
    m_gui->destroy();
    m_gui.reset();
    DestroyWindow(m_frame);
    pump();
}

void BenchWindow::pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

void BenchWindow::pumpUntilIdle() {
    constexpr DWORD LOOK_AGAIN_MILLISECONDS = 1;
    auto& mirel = m_desk.mirel();
    for (;;) {
        pump();
        if (mirel.getMessageManagerMaster().isIdle() && mirel.getMidiEngineMessageManager().isIdle() &&
            mirel.getDisplayMessageManager().isIdle() && !GetQueueStatus(QS_ALLINPUT))
            return;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, LOOK_AGAIN_MILLISECONDS, QS_ALLINPUT);
    }
}

}
