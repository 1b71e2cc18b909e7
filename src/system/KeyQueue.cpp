#include "system/KeyQueue.h"

#include <utility>

#include "platform/MainQueue.h"

namespace quorvel {

KeyQueue::KeyQueue(MainQueue& mainQueue, CapturedKeyHandler handler) : mainQueue(mainQueue), handler(std::move(handler))
{}

void KeyQueue::deliverLater(CapturedKey key)
{
    waiting.push_back(std::move(key));
    if (!isTurnDue) {
        continueSoon();
    }
}

void KeyQueue::deliver(CapturedKey key)
{
    waiting.push_back(std::move(key));
    if (!isTurnDue) {
        deliverNext();
        continueSoon();
    }
}

void KeyQueue::continueSoon()
{
    isTurnDue = true;
    mainQueue.async(weakly.guard([this] {
        isTurnDue = false;
        if (!waiting.empty()) {
            deliverNext();
        }
        if (!waiting.empty()) {
            continueSoon();
        }
    }));
}

void KeyQueue::deliverNext()
{
    const auto key = std::move(waiting.front());
    waiting.pop_front();
    handler(key);
}

} // namespace quorvel
