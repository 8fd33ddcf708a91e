#include "tests/Host/common/ports/posix/JackTestClient.h"

#include "Platform/MonotonicClock.h"
#include "tests/support/Eventually.h"

#include <jack/jack.h>
#include <jack/midiport.h>

#include <algorithm>
#include <deque>
#include <mutex>
#include <stdexcept>
#include <utility>

namespace Host {

struct JackTestClient::State {
    struct Waiting {
        std::vector<std::uint8_t> bytes;
        std::uint32_t frame;
    };

    jack_client_t* client = nullptr;
    jack_port_t* output = nullptr;
    jack_port_t* input = nullptr;
    mutable std::mutex mutex;  // Guards what follows.
    std::deque<Waiting> waiting;
    std::vector<Event> sent;
    std::vector<Event> heard;

    void process(jack_nframes_t frames);
};

void JackTestClient::State::process(jack_nframes_t frames) {
    const std::lock_guard lock(mutex);
    const std::int64_t now = Platform::monotonicMicroseconds();
    const std::int64_t begin = jack_last_frame_time(client);
    void* out = jack_port_get_buffer(output, frames);
    jack_midi_clear_buffer(out);
    for (std::uint32_t last = 0; !waiting.empty(); waiting.pop_front()) {
        const Waiting& next = waiting.front();
        last = std::max(last, std::min(next.frame, frames - 1));  // They must ascend.
        if (jack_midi_event_write(out, last, next.bytes.data(), next.bytes.size()) != 0)
            break;
        sent.push_back({next.bytes, begin + last, now});
    }
    void* in = jack_port_get_buffer(input, frames);
    const std::uint32_t count = jack_midi_get_event_count(in);
    for (std::uint32_t i = 0; i < count; ++i) {
        jack_midi_event_t event = {};
        if (jack_midi_event_get(&event, in, i) == 0)
            heard.push_back({{event.buffer, event.buffer + event.size}, begin + event.time, now});
    }
}

JackTestClient::JackTestClient(const std::string& name) : m_state(std::make_unique<State>()) {
    State& state = *m_state;
    // A busy server refuses now and then, and takes a while to forget a client of the same name.
    const bool isOpen = TestSupport::eventually([&] {
        state.client =
            jack_client_open(name.c_str(), static_cast<jack_options_t>(JackNoStartServer | JackUseExactName), nullptr);
        return state.client != nullptr;
    });
    if (!isOpen)
        throw std::runtime_error("no JACK server");
    state.output = jack_port_register(state.client, "out", JACK_DEFAULT_MIDI_TYPE, JackPortIsOutput, 0);
    state.input = jack_port_register(state.client, "in", JACK_DEFAULT_MIDI_TYPE, JackPortIsInput, 0);
    const auto process = [](jack_nframes_t frames, void* self) {
        static_cast<State*>(self)->process(frames);
        return 0;
    };
    jack_set_process_callback(state.client, process, &state);
    if (!state.output || !state.input || jack_activate(state.client) != 0) {
        jack_client_close(state.client);
        throw std::runtime_error("the JACK server takes no ports");
    }
}

JackTestClient::~JackTestClient() {
    jack_client_close(m_state->client);
}

std::string JackTestClient::output() const {
    return jack_port_name(m_state->output);
}

std::string JackTestClient::input() const {
    return jack_port_name(m_state->input);
}

int JackTestClient::outputConnections() const {
    return jack_port_connected(m_state->output);
}

int JackTestClient::inputConnections() const {
    return jack_port_connected(m_state->input);
}

void JackTestClient::send(std::vector<std::uint8_t> bytes, std::uint32_t frame) {
    const std::lock_guard lock(m_state->mutex);
    m_state->waiting.push_back({std::move(bytes), frame});
}

std::vector<JackTestClient::Event> JackTestClient::sent() const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->sent;
}

std::vector<JackTestClient::Event> JackTestClient::heard() const {
    const std::lock_guard lock(m_state->mutex);
    return m_state->heard;
}

void JackTestClient::forget() {
    const std::lock_guard lock(m_state->mutex);
    m_state->sent.clear();
    m_state->heard.clear();
}

}
