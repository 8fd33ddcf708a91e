#pragma once

#include "Host/common/ports/MidiSystem.h"

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace TestSupport {

// MIDI ports that exist only in a test, which can plug and unplug them and make them hang. Everything is [any].
class FakeMidiSystem : public Host::MidiSystem, public std::enable_shared_from_this<FakeMidiSystem> {
public:
    using Bytes = std::vector<std::uint8_t>;

    // Sets what is plugged in, by names in the system's order.
    void plugInputs(const std::vector<std::string>& names);
    void plugOutputs(const std::vector<std::string>& names);

    // Makes ports of this name fail to open, or open again.
    void refuse(const std::string& name, bool refuses);

    // Makes an output of this name hang in each of its sends, or go on.
    void hang(const std::string& name, bool hangs);

    // Makes sends to an output of this name fail, or work again.
    void breakPort(const std::string& name, bool isBroken);

    // How many sends hang at the moment, over all ports.
    int hanging() const { return m_hanging; }

    // How often the list of ports was requested.
    int timesListed() const { return m_timesListed; }

    // What was sent to an output, by its name and copy.
    std::vector<Bytes> sent(const std::string& name, int copy = 1) const;

    bool isInputOpen(const std::string& name, int copy = 1) const;
    bool isOutputOpen(const std::string& name, int copy = 1) const;
    int timesOpened(const std::string& name, int copy = 1) const;

    // Delivers bytes from an input. False if it is not open.
    bool receive(const std::string& name, const Bytes& bytes, std::int64_t microseconds = 0, int copy = 1);

    std::string name() override { return "fake"; }
    Host::MidiPortIds list() override;
    std::unique_ptr<Host::OpenMidiPort> openInput(const Host::MidiPortId& id, Host::MidiReceiver receiver) override;
    std::unique_ptr<Host::OpenMidiPort> openOutput(const Host::MidiPortId& id) override;
    bool hasVirtualPorts() override { return true; }
    std::unique_ptr<Host::OpenMidiPort> openVirtualInput(const std::string& name, Host::MidiReceiver receiver) override;
    std::unique_ptr<Host::OpenMidiPort> openVirtualOutput(const std::string& name) override;

private:
    class Input;
    class Output;
    using Key = std::pair<std::string, int>;

    std::unique_ptr<Host::OpenMidiPort> makeInput(const Key& key, Host::MidiReceiver receiver);
    std::unique_ptr<Host::OpenMidiPort> makeOutput(const Key& key);
    bool send(const Key& key, const Bytes& bytes);
    bool isOneOf(const std::set<std::string>& names, const std::string& name) const;

    mutable std::mutex m_mutex;
    Host::MidiPortIds m_plugged;
    std::set<std::string> m_refusing;
    std::set<std::string> m_hangingNames;
    std::set<std::string> m_broken;
    std::map<Key, std::vector<Bytes>> m_sent;
    std::map<Key, std::shared_ptr<Host::MidiReceiver>> m_receivers;
    std::map<Key, int> m_openOutputs;
    std::map<Key, int> m_timesOpened;
    std::atomic<int> m_hanging{0};
    std::atomic<int> m_timesListed{0};
};

}
