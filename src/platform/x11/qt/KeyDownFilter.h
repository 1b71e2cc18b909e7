#pragma once

#include <QAbstractNativeEventFilter>

#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

// Offers every key-down of the toolkit's windows to the program before a widget sees it. What it takes, auto-repeats
// of it and its release included, reaches no widget.
class KeyDownFilter final : public QAbstractNativeEventFilter {
public:
    explicit KeyDownFilter(const ToolkitHost& host) : host(host) {}

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    const ToolkitHost& host;
};

} // namespace quorvel::x11
