// A user-mode MIDI driver that provides real devices without hardware: what goes into its output n comes out of its
// input n, on one of the driver's own threads. There are two of each; the second input has the name of the first.
// Controller 119 on output 2 makes it hang for good.
#include <windows.h>

#include <mmsystem.h>

#include <mmddk.h>

#include <array>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <deque>
#include <mutex>
#include <thread>

extern "C" BOOL WINAPI DriverCallback(DWORD_PTR callback, UINT flags, HDRVR device, UINT message, DWORD_PTR instance,
                                      DWORD_PTR first, DWORD_PTR second);

namespace {

constexpr std::size_t PORTS = 2;
constexpr DWORD HANG_ON_OUTPUT_2 = 0x77b0;

struct Device {
    bool isOpen = false;
    bool isStarted = false;
    MIDIOPENDESC description = {};
    DWORD flags = 0;
};

struct Delivery {
    std::size_t input;
    DWORD word;
};

// All of the driver's state. It is never destroyed, because threads may still be in it when the program ends.
struct Driver {
    std::mutex mutex;
    std::condition_variable work;
    std::condition_variable delivered;
    std::array<Device, PORTS> outputs;
    std::array<Device, PORTS> inputs;
    std::deque<Delivery> queue;
    bool isDelivering = false;
    bool hasThread = false;
};

Driver& driver() {
    static Driver* const only = new Driver;
    return *only;
}

void callBack(const Device& device, UINT message, DWORD_PTR first, DWORD_PTR second) {
    DriverCallback(device.description.dwCallback, HIWORD(device.flags & CALLBACK_TYPEMASK),
                   reinterpret_cast<HDRVR>(device.description.hMidi), message, device.description.dwInstance, first,
                   second);
}

// The driver's thread.
void deliver() {
    Driver& self = driver();
    std::unique_lock lock(self.mutex);
    for (;;) {
        self.work.wait(lock, [&self] { return !self.queue.empty(); });
        const Delivery next = self.queue.front();
        self.queue.pop_front();
        const Device device = self.inputs[next.input];
        if (!device.isOpen || !device.isStarted)
            continue;
        self.isDelivering = true;
        lock.unlock();
        callBack(device, MIM_DATA, next.word, 0);
        lock.lock();
        self.isDelivering = false;
        self.delivered.notify_all();
    }
}

DWORD sendShort(std::size_t output, DWORD word) {
    if (output == 1 && (word & 0xffff) == HANG_ON_OUTPUT_2)
        for (;;)
            Sleep(INFINITE);
    Driver& self = driver();
    const std::lock_guard lock(self.mutex);
    if (!self.hasThread) {
        self.hasThread = true;
        std::thread(deliver).detach();
    }
    self.queue.push_back({output, word});
    self.work.notify_one();
    return MMSYSERR_NOERROR;
}

DWORD open(Device& device, DWORD_PTR description, DWORD_PTR flags, UINT message) {
    {
        const std::lock_guard lock(driver().mutex);
        if (device.isOpen)
            return MMSYSERR_ALLOCATED;
        device = {true, false, *reinterpret_cast<const MIDIOPENDESC*>(description), static_cast<DWORD>(flags)};
    }
    callBack(device, message, 0, 0);
    return MMSYSERR_NOERROR;
}

DWORD close(Device& device, UINT message) {
    Device closed;
    {
        std::unique_lock lock(driver().mutex);
        driver().delivered.wait(lock, [] { return !driver().isDelivering; });
        closed = device;
        device.isOpen = false;
    }
    callBack(closed, message, 0, 0);
    return MMSYSERR_NOERROR;
}

DWORD setStarted(Device& device, bool isStarted) {
    const std::lock_guard lock(driver().mutex);
    device.isStarted = isStarted;
    return MMSYSERR_NOERROR;
}

template <class Caps>
DWORD tellCaps(Caps caps, const wchar_t* name, DWORD_PTR target, DWORD_PTR size) {
    caps.wMid = 1;
    caps.wPid = 1;
    caps.vDriverVersion = 0x100;
    wcsncpy(caps.szPname, name, MAXPNAMELEN - 1);
    std::memcpy(reinterpret_cast<void*>(target), &caps, size < sizeof(caps) ? size : sizeof(caps));
    return MMSYSERR_NOERROR;
}

}

extern "C" {

// What the sound system asks of a driver; this one has no sound.
int WINAPI GetPriority() {
    return 3;
}

HRESULT WINAPI GetEndpointIDs(int, WCHAR*** ids, GUID** keys, UINT* count, UINT* defaultIndex) {
    *ids = nullptr;
    *keys = nullptr;
    *count = 0;
    *defaultIndex = 0;
    return S_OK;
}

HRESULT WINAPI GetAudioEndpoint(GUID*, void*, void** endpoint) {
    *endpoint = nullptr;
    return E_NOTIMPL;
}

HRESULT WINAPI GetAudioSessionManager(void*, void** manager) {
    *manager = nullptr;
    return E_NOTIMPL;
}

HRESULT WINAPI GetPropValue(GUID*, const void*, void*) {
    return E_NOTIMPL;
}

LRESULT WINAPI DriverProc(DWORD_PTR, HDRVR, UINT message, LPARAM, LPARAM) {
    switch (message) {
        case DRV_LOAD:
        case DRV_FREE:
        case DRV_OPEN:
        case DRV_CLOSE:
        case DRV_ENABLE:
        case DRV_DISABLE: return 1;
        default: return 0;
    }
}

DWORD WINAPI modMessage(UINT id, UINT message, DWORD_PTR, DWORD_PTR first, DWORD_PTR second) {
    switch (message) {
        case DRVM_INIT:
        case DRVM_EXIT:
        case DRVM_ENABLE:
        case DRVM_DISABLE: return MMSYSERR_NOERROR;
        case MODM_GETNUMDEVS: return PORTS;
        default: break;
    }
    if (id >= PORTS)
        return MMSYSERR_BADDEVICEID;
    switch (message) {
        case MODM_GETDEVCAPS: {
            MIDIOUTCAPSW caps = {};
            caps.wTechnology = MOD_MIDIPORT;
            caps.wChannelMask = 0xffff;
            return tellCaps(caps, id == 0 ? L"Loop Zo\u00eb \u30d4\u30a2\u30ce" : L"Loop 2", first, second);
        }
        case MODM_OPEN: return open(driver().outputs[id], first, second, MOM_OPEN);
        case MODM_CLOSE: return close(driver().outputs[id], MOM_CLOSE);
        case MODM_DATA: return sendShort(id, static_cast<DWORD>(first));
        case MODM_RESET: return MMSYSERR_NOERROR;
        default: return MMSYSERR_NOTSUPPORTED;
    }
}

DWORD WINAPI midMessage(UINT id, UINT message, DWORD_PTR, DWORD_PTR first, DWORD_PTR second) {
    switch (message) {
        case DRVM_INIT:
        case DRVM_EXIT:
        case DRVM_ENABLE:
        case DRVM_DISABLE: return MMSYSERR_NOERROR;
        case MIDM_GETNUMDEVS: return PORTS;
        default: break;
    }
    if (id >= PORTS)
        return MMSYSERR_BADDEVICEID;
    switch (message) {
        case MIDM_GETDEVCAPS: return tellCaps(MIDIINCAPSW{}, L"Loop In", first, second);
        case MIDM_OPEN: return open(driver().inputs[id], first, second, MIM_OPEN);
        case MIDM_CLOSE: return close(driver().inputs[id], MIM_CLOSE);
        case MIDM_START: return setStarted(driver().inputs[id], true);
        case MIDM_STOP:
        case MIDM_RESET: return setStarted(driver().inputs[id], false);
        default: return MMSYSERR_NOTSUPPORTED;
    }
}
}
