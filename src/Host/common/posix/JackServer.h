#pragma once

#include <atomic>
#include <memory>
#include <string>

using jack_client_t = struct _jack_client;

namespace Host {

// The desk's place at a running JACK server, which tells when the server has gone.
class JackServer {
public:
    // [any] A place under this name, or with a number behind it if another desk has that. Null if no server runs; none
    // is started.
    static std::shared_ptr<JackServer> connect(const std::string& clientName);

    explicit JackServer(jack_client_t* client, std::string name);
    ~JackServer();
    JackServer(const JackServer&) = delete;
    JackServer& operator=(const JackServer&) = delete;

    // [any] False from the moment the server has gone, or has thrown the desk out.
    bool isAlive() const { return m_isAlive; }

    // [any] The name that the desk has there, which no other one has.
    const std::string& name() const { return m_name; }

private:
    static void goneCallback(void* self);

    jack_client_t* m_client;
    const std::string m_name;
    std::atomic<bool> m_isAlive{true};
};

}
