// How far does an arpeggio drift from the grid within half a minute at 120 beats a minute?
#include "Backend/core/MirelMessageManager.h"
#include "Backend/core/installation/MirelUtils.h"
#include "Backend/core/xml/XmlDocument.h"
#include "Backend/core/xml/XmlElement.h"
#include "Backend/functions/values/SelectType.h"
#include "Backend/midi/layers/LayerList.h"
#include "Backend/midi/managers/LayerManager.h"
#include "Backend/midi/managers/LayerMessageManager.h"
#include "Backend/midi/sequences/SequencePresetManager.h"
#include "Host/common/desk/PortDesk.h"
#include "Platform/MonotonicClock.h"
#include "Platform/PreciseWait.h"
#include "Platform/RaisedPriority.h"
#include "Platform/TemporaryFolder.h"
#include "benchmarks/Report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <mutex>

namespace {

using namespace Benchmarks;
using namespace Backend;

constexpr const char* INPUT = "Master";
constexpr const char* OUTPUT = "Synth";
constexpr const char* LAYERS =
    "<Layers><Layer><Arpeggio><UpArpeggio beat='120' length='60'/></Arpeggio></Layer></Layers>";
constexpr std::array<std::uint8_t, 3> CHORD = {60, 64, 67};
constexpr std::int64_t LENGTH = 30000000;
constexpr double GRID = 125000;                   // A sixteenth in microseconds.
constexpr double TICK = 60 * 1e6 / (120 * 24.0);  // Of a clock master.

// A computer whose input and output belong to this program. It records when notes come out.
class MeasuringSystem : public Host::MidiSystem {
public:
    std::string name() override { return "measuring"; }
    Host::MidiPortIds list() override { return {{{INPUT, 1}}, {{OUTPUT, 1}}}; }
    std::unique_ptr<Host::OpenMidiPort> openInput(const Host::MidiPortId&, Host::MidiReceiver receiver) override {
        m_receiver = std::move(receiver);
        return std::make_unique<Port>(*this);
    }
    std::unique_ptr<Host::OpenMidiPort> openOutput(const Host::MidiPortId&) override {
        return std::make_unique<Port>(*this);
    }
    bool hasVirtualPorts() override { return false; }
    std::unique_ptr<Host::OpenMidiPort> openVirtualInput(const std::string&, Host::MidiReceiver) override {
        return nullptr;
    }
    std::unique_ptr<Host::OpenMidiPort> openVirtualOutput(const std::string&) override { return nullptr; }

    void receive(const std::vector<std::uint8_t>& bytes) {
        m_receiver(bytes.data(), bytes.size(), Platform::monotonicMicroseconds());
    }

    std::vector<std::int64_t> noteTimes() const {
        const std::lock_guard lock(m_mutex);
        return m_noteTimes;
    }

private:
    class Port : public Host::OpenMidiPort {
    public:
        explicit Port(MeasuringSystem& system) : m_system(system) {}

        bool send(const std::uint8_t* bytes, std::size_t count, std::int64_t) override {
            const std::int64_t now = Platform::monotonicMicroseconds();
            const std::lock_guard lock(m_system.m_mutex);
            if (count == 3 && (bytes[0] & 0xf0) == 0x90)
                m_system.m_noteTimes.push_back(now);
            return true;
        }

    private:
        MeasuringSystem& m_system;
    };

    Host::MidiReceiver m_receiver;
    mutable std::mutex m_mutex;
    std::vector<std::int64_t> m_noteTimes;
};

// Sends a master's ticks for the whole time, and returns how late each was sent.
std::vector<double> sendTicks(MeasuringSystem& system) {
    const Platform::RaisedPriority priority;
    Platform::PreciseWait wait;
    std::vector<double> late;
    system.receive({0xfa});
    const std::int64_t start = Platform::monotonicMicroseconds();
    for (int tick = 1; TICK * tick <= LENGTH; ++tick) {
        const std::int64_t moment = start + std::llround(TICK * tick);
        wait.waitUntil(moment);
        late.push_back(static_cast<double>(Platform::monotonicMicroseconds() - moment) / 1000);
        system.receive({0xf8});
    }
    return late;
}

// Compares each note with the nearest place on the grid; the first one defines the grid.
bool reportDrift(const std::string& name, const std::vector<std::int64_t>& times) {
    if (static_cast<double>(times.size()) < static_cast<double>(LENGTH) / GRID * 0.9)
        return false;
    std::vector<double> deviations;
    for (const std::int64_t time : times) {
        const auto since = static_cast<double>(time - times.front());
        deviations.push_back((since - GRID * std::round(since / GRID)) / 1000);
    }
    std::vector<double> sizes = deviations;
    std::for_each(sizes.begin(), sizes.end(), [](double& size) { size = std::abs(size); });
    report(name + ", notes", static_cast<double>(times.size()), "");
    reportSpread(name + ", deviation", sizes, "ms");
    report(name + ", the last note", deviations.back(), "ms");
    return true;
}

bool measure(const std::string& folder, bool isExternal) {
    const auto system = std::make_shared<MeasuringSystem>();
    Host::PortDesk desk(system, {"Mirel Benchmark", folder, std::string(), false});
    desk.start();
    const auto outputs = desk.ports().outputs();
    const auto output =
        std::find_if(outputs.begin(), outputs.end(), [](const Host::PortRow& row) { return row.id.name == OUTPUT; });
    auto& manager = desk.mirel().getMessageManager();
    manager.postChangeDefaultMidiOutput(SelectType(SelectType::SPECIFIC, static_cast<int>(output - outputs.begin())));
    const XmlDocument document(LAYERS, false);
    Layers::LayerList layers;
    layers.readXml(document.getRootElement(), SequenceManagement::SequencePresetManager(""));
    desk.mirel().getLayerMessageManager().postSetLayerList(layers, true);
    manager.postSetTempoSource(isExternal ? 0 : -1, true);
    desk.waitUntilIdle();
    for (const std::uint8_t note : CHORD)
        system->receive({0x90, note, 100});
    std::vector<double> late;
    if (isExternal) {
        late = sendTicks(*system);
    } else {
        Platform::PreciseWait wait;
        wait.waitUntil(Platform::monotonicMicroseconds() + LENGTH);
    }
    const auto times = system->noteTimes();
    for (const std::uint8_t note : CHORD)
        system->receive({0x80, note, 64});
    desk.stop();
    if (isExternal)
        reportSpread("the master's ticks, late themselves", late, "ms");
    return reportDrift(isExternal ? "24 ticks to the quarter" : "internal clock", times);
}

}

int main() {
    const Platform::TemporaryFolder folder;
    MirelUtils::useDataFolder(folder.getPath());
    if (measure(folder.getPath(), false) && measure(folder.getPath(), true))
        return 0;
    std::fprintf(stderr, "the arpeggio did not play\n");
    return 1;
}
