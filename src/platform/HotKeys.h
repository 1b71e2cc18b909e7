#pragma once

#include <compare>
#include <cstdint>
#include <expected>
#include <functional>

namespace quorvel {

// A numeric result of the platform's event services; 0 means success.
using OsStatus = std::int32_t;

namespace osStatus {
inline constexpr OsStatus success = 0;
inline constexpr OsStatus parameterError = -50;
inline constexpr OsStatus eventNotHandled = -9874;
inline constexpr OsStatus hotKeyExists = -9878;
inline constexpr OsStatus hotKeyInvalid = -9879;
} // namespace osStatus

struct HotKeyId {
    std::uint32_t signature = 0;
    std::uint32_t id = 0;

    auto operator<=>(const HotKeyId&) const = default;
};

// Names one registration; 0 names none.
using HotKeyRef = std::uint64_t;

inline constexpr HotKeyRef noHotKeyRef = 0;

struct HotKeyRegistration {
    OsStatus status = osStatus::success;
    HotKeyRef ref = noHotKeyRef;
};

// One press of a registered combination, valid during the handler's call.
class HotKeyEvent {
public:
    HotKeyEvent() = default;
    HotKeyEvent(const HotKeyEvent&) = delete;
    HotKeyEvent& operator=(const HotKeyEvent&) = delete;
    virtual ~HotKeyEvent() = default;

    // The id given at registration, or why it cannot be read.
    virtual std::expected<HotKeyId, OsStatus> hotKeyId() const = 0;

    // Hands the event to the next handler and returns its result.
    virtual OsStatus callNextHandler() = 0;
};

using HotKeyHandler = std::function<OsStatus(HotKeyEvent&)>;

// Combinations of keys that reach this program whichever application is frontmost. A hot key goes before every event
// tap. Presses arrive from the main loop; releases do not arrive. Auto-repeat of a held hot key is one press.
class HotKeys {
public:
    HotKeys() = default;
    HotKeys(const HotKeys&) = delete;
    HotKeys& operator=(const HotKeys&) = delete;
    virtual ~HotKeys() = default;

    // Installs the handler for presses. One at a time; a failure leaves none installed.
    virtual OsStatus installHandler(HotKeyHandler handler) = 0;
    virtual void removeHandler() = 0;

    // Claims a combination: a key code and a mask of hotKeyModifiers. A failure leaves nothing claimed.
    // osStatus::hotKeyExists: this program or another one holds it.
    //
    // X11: Command is Super, Option is Alt; the state of Caps Lock and Num Lock does not matter.
    virtual HotKeyRegistration registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, HotKeyId id) = 0;

    virtual OsStatus unregisterHotKey(HotKeyRef ref) = 0;
};

} // namespace quorvel
