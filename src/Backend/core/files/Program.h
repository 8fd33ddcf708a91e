#pragma once

#include <cstdint>
#include <string>

namespace Backend {

// What a program is besides the state of its components.
class Program {
public:
    static constexpr int DEFAULT_TEMPO = 120;
    static constexpr int NO_TEMPO_SOURCE = -1;

    Program() = default;
    Program(std::string name, std::int32_t index, std::int32_t tempo, std::int32_t tempoSource)
        : m_name(std::move(name)), m_index(index), m_tempo(tempo), m_tempoSource(tempoSource) {}

    const std::string& getName() const { return m_name; }
    void setName(const std::string& name) { m_name = name; }

    // Its place in the bank, from 0.
    std::int32_t getIndex() const { return m_index; }

    // Beats per minute.
    std::int32_t getTempo() const { return m_tempo; }
    void setTempo(std::int32_t tempo) { m_tempo = tempo; }

    // The input whose clock sets the time, or -1.
    std::int32_t getTempoSource() const { return m_tempoSource; }
    void setTempoSource(std::int32_t source) { m_tempoSource = source; }

private:
    std::string m_name;
    std::int32_t m_index = 0;
    std::int32_t m_tempo = DEFAULT_TEMPO;
    std::int32_t m_tempoSource = NO_TEMPO_SOURCE;
};

}
