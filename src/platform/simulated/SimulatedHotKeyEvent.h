#pragma once

#include <cstddef>

#include "platform/HotKeys.h"

namespace quorvel {

class Journal;

class SimulatedHotKeyEvent final : public HotKeyEvent {
public:
    SimulatedHotKeyEvent(Journal& journal, std::expected<HotKeyId, OsStatus> id) : journal(journal), id(id) {}

    std::expected<HotKeyId, OsStatus> hotKeyId() const override { return id; }
    OsStatus callNextHandler() override;

    std::size_t nextHandlerCalls() const { return calls; }

private:
    Journal& journal;
    std::expected<HotKeyId, OsStatus> id;
    std::size_t calls = 0;
};

} // namespace quorvel
