#pragma once

#include "Platform/WindowTypes.h"

namespace Backend {

class MessageManagerMaster;

// One family of messages to the backend worker.
class MessageManager {
public:
    // The master must outlive this object.
    explicit MessageManager(MessageManagerMaster& master);
    virtual ~MessageManager() = default;
    MessageManager(const MessageManager&) = delete;
    MessageManager& operator=(const MessageManager&) = delete;

    // [backend] Whether this object handles messages of this number.
    virtual bool wantMessage(unsigned int message) = 0;

    // [backend] Carries one message out and owns what it brings. A number without a meaning is ignored.
    virtual void handleMessage(const MSG& message) = 0;

    // [thread that stops the backend] Destroys what a message brings that was posted too late to be handled.
    virtual void disposeMessage(const MSG& message);

    // [any] Whether the calling thread is the backend worker.
    bool currentThreadIsManagerThread() const;

protected:
    MessageManagerMaster& m_master;
};

}
