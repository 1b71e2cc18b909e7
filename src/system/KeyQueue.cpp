#include "system/KeyQueue.h"

#include <utility>

#include "platform/MainQueue.h"

namespace quorvel {

KeyQueue::KeyQueue(MainQueue& mainQueue, CapturedKeyHandler handler) : mainQueue(mainQueue), handler(std::move(handler))
{}

void KeyQueue::deliverLater(CapturedKey key)
{
    const auto earlier = waiting.size();
    waiting.push_back(std::move(key));
    if (!dueTurn) {
        dueTurn = ++turns;
    }
    askForTurn(earlier);
}

void KeyQueue::deliver(CapturedKey key)
{
    const auto earlier = waiting.size();
    waiting.push_back(std::move(key));
    if (!dueTurn) {
        deliverNext();
        dueTurn = ++turns;
    }
    askForTurn(earlier);
}

// Each key asks for the turn that is due, and the first that comes takes it. So one that comes later takes it only if
// the turn got lost, and with it the keys that waited for it: they are not to reach a later mode.
void KeyQueue::askForTurn(std::size_t earlier)
{
    mainQueue.async(weakly.guard([this, turn = dueTurn, earlier] {
        if (dueTurn == turn) {
            waiting.erase(waiting.begin(), waiting.begin() + static_cast<std::ptrdiff_t>(earlier));
            takeTurn();
        }
    }));
}

void KeyQueue::takeTurn()
{
    dueTurn.reset();
    if (!waiting.empty()) {
        deliverNext();
    }
    if (!waiting.empty() && !dueTurn) {
        dueTurn = ++turns;
        askForTurn(0);
    }
}

void KeyQueue::deliverNext()
{
    const auto key = std::move(waiting.front());
    waiting.pop_front();
    handler(key);
}

} // namespace quorvel
