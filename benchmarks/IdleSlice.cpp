// What does a slice cost in which nothing happens?
#include "benchmarks/BenchEngine.h"
#include "benchmarks/Cases.h"

namespace {

using namespace Benchmarks;

class IdleSlice : public Case {
public:
    IdleSlice(std::int32_t ppq, int layers)
        : m_engine(repeatLayer("<Layer><Arpeggio><UpArpeggio/></Arpeggio></Layer>", layers)), m_ppq(ppq) {}

    void run(std::int64_t operations) override {
        for (; operations > 0; --operations)
            m_engine.playSlice(m_ppq);
    }

private:
    BenchEngine m_engine;
    std::int32_t m_ppq;
};

const bool added = [] {
    for (const int ppq : {1, 20, 960})
        for (const int layers : {0, 16, 64})
            addCase("idle_" + std::to_string(ppq) + "_ppq_" + std::to_string(layers) + "_arpeggio_layers",
                    [ppq, layers] { return std::make_unique<IdleSlice>(ppq, layers); });
    return true;
}();

}
