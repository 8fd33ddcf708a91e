#include "tests/support/win32/WindowDesk.h"

#include "Backend/core/installation/MirelUtils.h"
#include "Backend/input/Key.h"
#include "Platform/Sleep.h"
#include "tests/support/RunningDesk.h"

#include <utility>

namespace TestSupport {

using namespace Backend;

namespace {

constexpr const char* NAME = "Mirel Console 3 LE";

}

// Records the keys as they come from the window.
class WindowDesk::WitnessMirel : public Mirel {
public:
    WitnessMirel(WindowDesk& desk, std::vector<std::string>& keys) : Mirel(NAME, desk), m_keys(keys) {}

    void postKeyDown(const Key& key, bool isRepeat) override {
        m_keys.push_back("down " + describe(key) + (isRepeat ? " repeat" : ""));
        Mirel::postKeyDown(key, isRepeat);
    }

    void postKeyUp(const Key& key) override {
        m_keys.push_back("up " + describe(key));
        Mirel::postKeyUp(key);
    }

private:
    static std::string describe(const Key& key) {
        return std::to_string(key.getCode()) + " " + std::to_string(key.getModifierIndex());
    }

    std::vector<std::string>& m_keys;
};

WindowDesk::WindowDesk() {
    MirelUtils::useDataFolder(m_folder.path());
    m_mirel = std::make_unique<WitnessMirel>(*this, m_keys);
}

WindowDesk::~WindowDesk() {
    close();
    if (m_isRunning) {
        settle();
        m_mirel->getMessageManager().sendEnd();
        m_mirel->stop();
    }
    m_isPlaying = false;
    if (m_player.joinable())
        m_player.join();
    m_mirel.reset();
    MirelUtils::useDataFolder("");
}

void WindowDesk::prepareSettings(const std::function<void(RegistrySettings&)>& set) {
    const auto store = MirelUtils::createSettingsStore();
    RegistrySettings settings(*store);
    set(settings);
    settings.saveToRegistry(MirelUtils::getRegistryKey(NAME));
}

void WindowDesk::prepareProgramFolder(const std::string& folder) {
    const auto store = MirelUtils::createSettingsStore();
    const auto key = store->open(MirelUtils::getMainRegistryKeyLite());
    key->writeText("ProgDir", folder);
    key->save();
}

void WindowDesk::start() {
    m_isRunning = true;
    m_mirel->start();
    MirelMessageManager& manager = m_mirel->getMessageManager();
    manager.sendInitialize();
    manager.sendSetMidiInputPorts(makePorts<MidiEngine::MidiInputPort>({"In 0", "In 1"}));
    manager.sendSetMidiOutputPorts(makePorts<MidiEngine::MidiOutputPort>({"Out 0", "Out 1", "Out 2"}));
    manager.sendEndInitialize();
}

void WindowDesk::startPlayer() {
    m_isPlaying = true;
    m_player = std::thread([this] {
        m_threadId = Platform::currentThreadId();
        for (std::int32_t now = 0; m_isPlaying; ++now) {
            m_mirel->playTimeSlice(now, now + 1);
            Platform::sleepMilliseconds(1);  // The pace of a player; whatever comes meanwhile belongs to one slice.
        }
    });
}

Gui::MirelGui& WindowDesk::open(bool isVstPlugin) {
    m_gui.reset(dynamic_cast<Gui::MirelGui*>(m_mirel->getMessageManager().sendCreateMirelGui(isVstPlugin)));
    m_gui->create(host.handle());
    m_gui->initialize();
    settle();
    return *m_gui;
}

void WindowDesk::close() {
    if (!m_gui)
        return;
    m_gui->destroy();
    m_gui.reset();
    settle();
}

void WindowDesk::settle() {
    const auto isResting = [this] {
        return m_mirel->getMessageManagerMaster().isIdle() && m_mirel->getMidiEngineMessageManager().isIdle() &&
               m_mirel->getDisplayMessageManager().isIdle();
    };
    do {
        pumpUntil(isResting);
        pump();
    } while (!isResting());
}

SIZE WindowDesk::size() {
    RECT rect;
    GetWindowRect(window(), &rect);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

void WindowDesk::tell(UINT message, WPARAM wParam, LPARAM lParam) {
    PostMessageA(window(), message, wParam, lParam);
    settle();
}

std::vector<std::string> WindowDesk::takeKeys() {
    return std::exchange(m_keys, {});
}

}
