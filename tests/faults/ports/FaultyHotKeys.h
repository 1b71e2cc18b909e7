#pragma once

#include <utility>

#include "platform/HotKeys.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyHotKeyEvent final : public HotKeyEvent {
public:
    FaultyHotKeyEvent(HotKeyEvent& real, PortFaults& faults) : real(real), faults(faults) {}

    std::expected<HotKeyId, OsStatus> hotKeyId() const override
    {
        return faults.attempt(
            "HotKeyEvent.hotKeyId", [&] { return real.hotKeyId(); }, std::unexpected(osStatus::parameterError));
    }

    OsStatus callNextHandler() override
    {
        return faults.attempt(
            "HotKeyEvent.callNextHandler", [&] { return real.callNextHandler(); }, OsStatus{osStatus::eventNotHandled});
    }

private:
    HotKeyEvent& real;
    PortFaults& faults;
};

class FaultyHotKeys final : public HotKeys {
public:
    FaultyHotKeys(HotKeys& real, PortFaults& faults) : real(real), faults(faults) {}

    OsStatus installHandler(HotKeyHandler handler) override
    {
        return faults.attempt(
            "HotKeys.installHandler",
            [&] {
                return real.installHandler([this, handler = std::move(handler)](HotKeyEvent& event) {
                    FaultyHotKeyEvent faulty(event, faults);
                    return handler(faulty);
                });
            },
            OsStatus{osStatus::parameterError});
    }

    void removeHandler() override
    {
        faults.attemptEffect("HotKeys.removeHandler", [&] { real.removeHandler(); });
    }

    HotKeyRegistration registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id) override
    {
        return faults.attempt(
            "HotKeys.registerHotKey", [&] { return real.registerHotKey(keyCode, modifiers, id); },
            HotKeyRegistration{osStatus::hotKeyExists, noHotKeyRef}, HotKeyRegistration{});
    }

    OsStatus unregisterHotKey(HotKeyRef ref) override
    {
        return faults.attempt(
            "HotKeys.unregisterHotKey", [&] { return real.unregisterHotKey(ref); }, OsStatus{osStatus::parameterError});
    }

private:
    HotKeys& real;
    PortFaults& faults;
};

} // namespace quorvel
