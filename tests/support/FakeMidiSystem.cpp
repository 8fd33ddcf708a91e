#include "tests/support/FakeMidiSystem.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace TestSupport {

using Host::MidiPortId;
using Host::MidiReceiver;
using Host::OpenMidiPort;

class FakeMidiSystem::Input : public OpenMidiPort {
public:
    Input(std::shared_ptr<FakeMidiSystem> system, Key key) : m_system(std::move(system)), m_key(std::move(key)) {}
    ~Input() override {
        const std::lock_guard lock(m_system->m_mutex);
        m_system->m_receivers.erase(m_key);
    }
    Input(const Input&) = delete;
    Input& operator=(const Input&) = delete;

    bool send(const std::uint8_t*, std::size_t, std::int64_t) override { return false; }

private:
    const std::shared_ptr<FakeMidiSystem> m_system;
    const Key m_key;
};

class FakeMidiSystem::Output : public OpenMidiPort {
public:
    Output(std::shared_ptr<FakeMidiSystem> system, Key key) : m_system(std::move(system)), m_key(std::move(key)) {}
    ~Output() override {
        const std::lock_guard lock(m_system->m_mutex);
        --m_system->m_openOutputs[m_key];
    }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t) override {
        return m_system->send(m_key, Bytes(bytes, bytes + count));
    }

private:
    const std::shared_ptr<FakeMidiSystem> m_system;
    const Key m_key;
};

void FakeMidiSystem::plugInputs(const std::vector<std::string>& names) {
    const std::lock_guard lock(m_mutex);
    m_plugged.inputs = Host::numberCopies(names);
}

void FakeMidiSystem::plugOutputs(const std::vector<std::string>& names) {
    const std::lock_guard lock(m_mutex);
    m_plugged.outputs = Host::numberCopies(names);
}

void FakeMidiSystem::refuse(const std::string& name, bool refuses) {
    const std::lock_guard lock(m_mutex);
    refuses ? void(m_refusing.insert(name)) : void(m_refusing.erase(name));
}

void FakeMidiSystem::hang(const std::string& name, bool hangs) {
    const std::lock_guard lock(m_mutex);
    hangs ? void(m_hangingNames.insert(name)) : void(m_hangingNames.erase(name));
}

void FakeMidiSystem::breakPort(const std::string& name, bool isBroken) {
    const std::lock_guard lock(m_mutex);
    isBroken ? void(m_broken.insert(name)) : void(m_broken.erase(name));
}

std::vector<FakeMidiSystem::Bytes> FakeMidiSystem::sent(const std::string& name, int copy) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_sent.find({name, copy});
    return found == m_sent.end() ? std::vector<Bytes>() : found->second;
}

bool FakeMidiSystem::isInputOpen(const std::string& name, int copy) const {
    const std::lock_guard lock(m_mutex);
    return m_receivers.count({name, copy}) > 0;
}

bool FakeMidiSystem::isOutputOpen(const std::string& name, int copy) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_openOutputs.find({name, copy});
    return found != m_openOutputs.end() && found->second > 0;
}

int FakeMidiSystem::timesOpened(const std::string& name, int copy) const {
    const std::lock_guard lock(m_mutex);
    const auto found = m_timesOpened.find({name, copy});
    return found == m_timesOpened.end() ? 0 : found->second;
}

bool FakeMidiSystem::receive(const std::string& name, const Bytes& bytes, std::int64_t microseconds, int copy) {
    std::shared_ptr<MidiReceiver> receiver;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_receivers.find({name, copy});
        if (found == m_receivers.end())
            return false;
        receiver = found->second;
    }
    (*receiver)(bytes.data(), bytes.size(), microseconds);
    return true;
}

Host::MidiPortIds FakeMidiSystem::list() {
    ++m_timesListed;
    const std::lock_guard lock(m_mutex);
    return m_plugged;
}

bool FakeMidiSystem::isOneOf(const std::set<std::string>& names, const std::string& name) const {
    const std::lock_guard lock(m_mutex);
    return names.count(name) > 0;
}

bool FakeMidiSystem::send(const Key& key, const Bytes& bytes) {
    if (isOneOf(m_hangingNames, key.first)) {
        ++m_hanging;
        while (isOneOf(m_hangingNames, key.first))
            std::this_thread::yield();
        --m_hanging;
    }
    const std::lock_guard lock(m_mutex);
    if (m_broken.count(key.first) > 0)
        return false;
    m_sent[key].push_back(bytes);
    return true;
}

std::unique_ptr<OpenMidiPort> FakeMidiSystem::makeInput(const Key& key, MidiReceiver receiver) {
    const std::lock_guard lock(m_mutex);
    ++m_timesOpened[key];
    if (m_refusing.count(key.first) > 0)
        return nullptr;
    m_receivers[key] = std::make_shared<MidiReceiver>(std::move(receiver));
    return std::make_unique<Input>(shared_from_this(), key);
}

std::unique_ptr<OpenMidiPort> FakeMidiSystem::makeOutput(const Key& key) {
    const std::lock_guard lock(m_mutex);
    ++m_timesOpened[key];
    if (m_refusing.count(key.first) > 0)
        return nullptr;
    ++m_openOutputs[key];
    return std::make_unique<Output>(shared_from_this(), key);
}

std::unique_ptr<OpenMidiPort> FakeMidiSystem::openInput(const MidiPortId& id, MidiReceiver receiver) {
    return makeInput({id.name, id.copy}, std::move(receiver));
}

std::unique_ptr<OpenMidiPort> FakeMidiSystem::openOutput(const MidiPortId& id) {
    return makeOutput({id.name, id.copy});
}

std::unique_ptr<OpenMidiPort> FakeMidiSystem::openVirtualInput(const std::string& name, MidiReceiver receiver) {
    return makeInput({name, 0}, std::move(receiver));
}

std::unique_ptr<OpenMidiPort> FakeMidiSystem::openVirtualOutput(const std::string& name) {
    return makeOutput({name, 0});
}

}
