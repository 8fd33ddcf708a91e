#include "Host/common/posix/JackServer.h"

#include <jack/jack.h>

#include <utility>

namespace Host {

namespace {

constexpr int MAX_DESKS = 50;

void ignoreText(const char*) {}

}

std::shared_ptr<JackServer> JackServer::connect(const std::string& clientName) {
    // A computer without the server is nothing to complain of.
    jack_set_error_function(ignoreText);
    jack_set_info_function(ignoreText);
    for (int number = 1; number <= MAX_DESKS; ++number) {
        const std::string name = number == 1 ? clientName : clientName + " " + std::to_string(number);
        jack_status_t status = {};
        jack_client_t* client =
            jack_client_open(name.c_str(), static_cast<jack_options_t>(JackNoStartServer | JackUseExactName), &status);
        if (client)
            return std::make_shared<JackServer>(client, name);
        if ((status & JackNameNotUnique) == 0)
            break;
    }
    return nullptr;
}

JackServer::JackServer(jack_client_t* client, std::string name) : m_client(client), m_name(std::move(name)) {
    jack_on_shutdown(m_client, goneCallback, this);
    if (jack_activate(m_client) != 0)
        m_isAlive = false;
}

JackServer::~JackServer() {
    jack_client_close(m_client);
}

void JackServer::goneCallback(void* self) {
    static_cast<JackServer*>(self)->m_isAlive = false;
}

}
