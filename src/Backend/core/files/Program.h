#pragma once

#include "Backend/core/xml/Attribute.h"

#include <cstdint>
#include <string>

namespace Backend {

// A program's own values, besides the state of its components.
class Program {
public:
    static constexpr int DEFAULT_TEMPO = 120;
    static constexpr NumberRange TEMPO{20, 250};  // What a user can set. Files may say otherwise.
    static constexpr int NO_TEMPO_SOURCE = -1;

    static auto attributes() {
        return std::tuple{
            Attribute{"name", &Program::m_name},
            Attribute{"tempo", &Program::m_tempo, DEFAULT_TEMPO, TEMPO, Written::WITH_CHILDREN},
            Attribute{"tempoSource", &Program::m_tempoSource, NO_TEMPO_SOURCE, {-1, 127}, Written::WITH_CHILDREN},
        };
    }

    Program() = default;

    // Reads its element.
    explicit Program(const XmlElement& element, std::int32_t index = 0) : m_index(index) {
        readAttributes(element, *this);
    }

    Program(std::string name, std::int32_t index, std::int32_t tempo, std::int32_t tempoSource)
        : m_name(std::move(name)), m_index(index), m_tempo(tempo), m_tempoSource(tempoSource) {}

    const std::string& getName() const { return m_name; }
    void setName(const std::string& name) { m_name = name; }

    // Its place in the bank, from 0.
    std::int32_t getIndex() const { return m_index; }

    // Beats per minute.
    std::int32_t getTempo() const { return m_tempo; }
    void setTempo(std::int32_t tempo) { m_tempo = tempo; }

    // The input whose clock drives the time, or -1.
    std::int32_t getTempoSource() const { return m_tempoSource; }
    void setTempoSource(std::int32_t source) { m_tempoSource = source; }

private:
    std::string m_name;
    std::int32_t m_index = 0;
    std::int32_t m_tempo = DEFAULT_TEMPO;
    std::int32_t m_tempoSource = NO_TEMPO_SOURCE;
};

}
