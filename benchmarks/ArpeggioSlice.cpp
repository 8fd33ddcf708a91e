// What does a slice cost while sixteen arpeggios play four notes each?
#include "benchmarks/BenchEngine.h"
#include "benchmarks/Cases.h"

namespace {

using namespace Benchmarks;

class ArpeggioSlice : public Case {
public:
    ArpeggioSlice(const std::string& kind, std::int32_t ppq)
        : m_engine(repeatLayer("<Layer><Arpeggio><" + kind + " beat='120' length='60'/></Arpeggio></Layer>", LAYERS)),
          m_ppq(ppq) {
        for (const int note : {60, 64, 67, 71})
            m_engine.post(true, note, 100);
        m_engine.playSlice(1);
    }

    void run(std::int64_t operations) override {
        for (; operations > 0; --operations)
            m_engine.playSlice(m_ppq);
    }

private:
    static constexpr int LAYERS = 16;

    BenchEngine m_engine;
    std::int32_t m_ppq;
};

const bool added = [] {
    for (const std::string kind : {"ChordArpeggio", "UpArpeggio", "DownArpeggio", "UpDownArpeggio"})
        for (const int ppq : {1, 20})
            addCase("16_" + kind + "_4_notes_" + std::to_string(ppq) + "_ppq",
                    [kind, ppq] { return std::make_unique<ArpeggioSlice>(kind, ppq); });
    return true;
}();

}
