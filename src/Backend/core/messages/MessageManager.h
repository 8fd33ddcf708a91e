#pragma once

#include "Backend/core/messages/Message.h"
#include "Platform/WindowTypes.h"

#include <memory>

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

    // [backend] Carries out one message and owns its payload. An unknown number is ignored.
    virtual void handleMessage(const MSG& message) = 0;

    // [thread that stops the backend] Destroys the payload of a message that was posted too late to be handled.
    virtual void disposeMessage(const MSG& message) = 0;

    // [any] Whether the calling thread is the backend worker.
    bool currentThreadIsManagerThread() const;

protected:
    // [any] Posts a message that carries these values, waiting while the queue takes nothing.
    template <class Row, class... Values>
    void post(Row row, const Values&... values) {
        static_assert(!Row::IS_SENT, "this message is to be sent");
        row.post([this](UINT number, WPARAM wParam, LPARAM lParam) { postWords(number, wParam, lParam); }, values...);
    }

    // [any, rt] Posts an object that is on the heap already, without waiting. Returns false while the queue takes
    // nothing; the object then stays the caller's.
    template <class Row, class T>
    [[nodiscard]] bool tryPostOwned(Row row, std::unique_ptr<T>& object) {
        return row.postOwned(
            [this](UINT number, WPARAM wParam, LPARAM lParam) { return tryPostWords(number, wParam, lParam); }, object);
    }

    // [any but backend] Posts a message and waits until it has been handled.
    template <class Row, class... Values>
    void send(Row row, const Values&... values) {
        static_assert(Row::IS_SENT, "nobody answers to this message");
        row.post([this](UINT number, WPARAM wParam, LPARAM lParam) { postWords(number, wParam, lParam); }, values...);
        waitForAnswer();
    }

    MessageManagerMaster& m_master;

private:
    void postWords(UINT number, WPARAM wParam, LPARAM lParam);
    bool tryPostWords(UINT number, WPARAM wParam, LPARAM lParam);
    void waitForAnswer();
};

}
