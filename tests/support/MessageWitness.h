#pragma once

#include "Backend/core/messages/MessageManager.h"
#include "Platform/AutoResetEvent.h"

#include <utility>
#include <vector>

namespace TestSupport {

// Stands in front of a manager on a worker and records what it gets.
class MessageWitness : public Backend::MessageManager {
public:
    MessageWitness(Backend::MessageManagerMaster& master, Backend::MessageManager& manager)
        : MessageManager(master), m_manager(manager) {}

    bool wantMessage(unsigned int message) override { return m_manager.wantMessage(message); }
    void handleMessage(const MSG& message) override {
        m_seen.push_back(message);
        m_manager.handleMessage(message);
    }
    void disposeMessage(const MSG& message) override {
        m_disposed.push_back(message.message);
        m_manager.disposeMessage(message);
    }

    // Call this while the worker is idle: what was handled since the last call, and the numbers of all that was
    // disposed of.
    std::vector<MSG> takeSeen() { return std::exchange(m_seen, {}); }
    const std::vector<UINT>& getDisposed() const { return m_disposed; }

private:
    Backend::MessageManager& m_manager;
    std::vector<MSG> m_seen;
    std::vector<UINT> m_disposed;
};

// Holds the worker at a message of this number until it is released.
class WorkerGate : public Backend::MessageManager {
public:
    static constexpr UINT NUMBER = 40001;

    using MessageManager::MessageManager;

    bool wantMessage(unsigned int message) override { return message == NUMBER; }
    void handleMessage(const MSG&) override { m_open.wait(); }
    void disposeMessage(const MSG&) override {}
    void open() { m_open.set(); }

private:
    Platform::AutoResetEvent m_open;
};

}
