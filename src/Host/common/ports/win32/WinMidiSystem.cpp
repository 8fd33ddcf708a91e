#include "Host/common/ports/win32/WinMidiSystem.h"

#include "Host/common/ports/MidiByteParser.h"
#include "Platform/MonotonicClock.h"
#include "Platform/Sleep.h"

#include <windows.h>

#include <mmsystem.h>

#include <algorithm>
#include <array>
#include <utility>

namespace Host {

namespace {

std::string utf8(const wchar_t* wide) {
    const int needed = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
    std::string text(static_cast<std::size_t>(std::max(needed, 1)), '\0');
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), needed, nullptr, nullptr);
    text.pop_back();  // The terminating zero.
    return text;
}

// The names of all ports, by number. A port that gives no name keeps its number with an empty one.
std::vector<std::string> inputNames() {
    std::vector<std::string> names(midiInGetNumDevs());
    for (UINT i = 0; i < names.size(); ++i) {
        MIDIINCAPSW caps = {};
        if (midiInGetDevCapsW(i, &caps, sizeof(caps)) == MMSYSERR_NOERROR)
            names[i] = utf8(caps.szPname);
    }
    return names;
}

std::vector<std::string> outputNames() {
    std::vector<std::string> names(midiOutGetNumDevs());
    for (UINT i = 0; i < names.size(); ++i) {
        MIDIOUTCAPSW caps = {};
        if (midiOutGetDevCapsW(i, &caps, sizeof(caps)) == MMSYSERR_NOERROR)
            names[i] = utf8(caps.szPname);
    }
    return names;
}

std::vector<MidiPortId> named(const std::vector<std::string>& names) {
    std::vector<MidiPortId> ids = numberCopies(names);
    ids.erase(std::remove_if(ids.begin(), ids.end(), [](const MidiPortId& id) { return id.name.empty(); }), ids.end());
    return ids;
}

// The number of a port; the count of ports if none has that name.
UINT numberOf(const MidiPortId& id, const std::vector<std::string>& names) {
    const std::vector<MidiPortId> ids = numberCopies(names);
    return static_cast<UINT>(std::find(ids.begin(), ids.end(), id) - ids.begin());
}

class OpenInput : public OpenMidiPort {
public:
    OpenInput(UINT number, MidiReceiver receiver) : m_receiver(std::move(receiver)) {
        if (midiInOpen(&m_handle, number, reinterpret_cast<DWORD_PTR>(receive), reinterpret_cast<DWORD_PTR>(this),
                       CALLBACK_FUNCTION) != MMSYSERR_NOERROR)
            m_handle = nullptr;
        else
            m_isStarted = midiInStart(m_handle) == MMSYSERR_NOERROR;
    }

    ~OpenInput() override {
        if (!m_handle)
            return;
        midiInStop(m_handle);
        midiInReset(m_handle);
        midiInClose(m_handle);
    }

    OpenInput(const OpenInput&) = delete;
    OpenInput& operator=(const OpenInput&) = delete;

    bool isOpen() const { return m_isStarted; }
    bool send(const std::uint8_t*, std::size_t, std::int64_t) override { return false; }

private:
    static void CALLBACK receive(HMIDIIN, UINT message, DWORD_PTR self, DWORD_PTR word, DWORD_PTR) {
        // A sysex needs buffers, and none were provided: the system drops it.
        if (message == MIM_DATA)
            reinterpret_cast<OpenInput*>(self)->take(static_cast<std::uint32_t>(word));
    }

    void take(std::uint32_t word) {
        const std::array<std::uint8_t, 3> bytes = {static_cast<std::uint8_t>(word & 0xff),
                                                   static_cast<std::uint8_t>(word >> 8 & 0xff),
                                                   static_cast<std::uint8_t>(word >> 16 & 0xff)};
        const std::size_t length = m_parser.lengthOfPacked(word);
        MidiBytes ignored;
        for (std::size_t i = 0; i < length; ++i)
            m_parser.feed(bytes[i], ignored);
        m_receiver(bytes.data(), length, Platform::monotonicMicroseconds());
    }

    const MidiReceiver m_receiver;
    MidiByteParser m_parser;  // Keeps the running status.
    HMIDIIN m_handle = nullptr;
    bool m_isStarted = false;
};

class OpenOutput : public OpenMidiPort {
public:
    explicit OpenOutput(UINT number) {
        if (midiOutOpen(&m_handle, number, 0, 0, CALLBACK_NULL) != MMSYSERR_NOERROR)
            m_handle = nullptr;
    }

    ~OpenOutput() override {
        if (m_handle)
            midiOutClose(m_handle);
    }

    OpenOutput(const OpenOutput&) = delete;
    OpenOutput& operator=(const OpenOutput&) = delete;

    bool isOpen() const { return m_handle != nullptr; }

    bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t) override {
        DWORD word = 0;
        for (std::size_t i = 0; i < std::min<std::size_t>(count, 3); ++i)
            word |= DWORD{bytes[i]} << 8 * i;
        constexpr int PATIENCE = 1000;
        for (int i = 0; i < PATIENCE; ++i) {
            const MMRESULT result = midiOutShortMsg(m_handle, word);
            if (result != MIDIERR_NOTREADY)
                return result == MMSYSERR_NOERROR;
            Platform::sleepMilliseconds(1);
        }
        return false;
    }

private:
    HMIDIOUT m_handle = nullptr;
};

}

MidiPortIds WinMidiSystem::list() {
    return {named(inputNames()), named(outputNames())};
}

std::unique_ptr<OpenMidiPort> WinMidiSystem::openInput(const MidiPortId& id, MidiReceiver receiver) {
    auto port = std::make_unique<OpenInput>(numberOf(id, inputNames()), std::move(receiver));
    return port->isOpen() ? std::move(port) : nullptr;
}

std::unique_ptr<OpenMidiPort> WinMidiSystem::openOutput(const MidiPortId& id) {
    auto port = std::make_unique<OpenOutput>(numberOf(id, outputNames()));
    return port->isOpen() ? std::move(port) : nullptr;
}

std::shared_ptr<MidiSystem> createMidiSystem(const std::string&) {
    return std::make_shared<WinMidiSystem>();
}

}
