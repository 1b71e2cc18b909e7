#pragma once

#include <QKeyEvent>
#include <QObject>

#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

// Shows the program every key that goes down in a window of the toolkit, in its turn: after what earlier keys do has
// been done, before any shortcut and widget. A key that the program swallows goes no further, and neither do its
// repeats and its release.
class KeyDownFilter final : public QObject {
public:
    explicit KeyDownFilter(const ToolkitHost& host) : host(host) {}

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool takes(const QKeyEvent& offer);

    const ToolkitHost& host;
    quint32 swallowed = 0; // the X key code of the key that was swallowed last, until it is released
};

} // namespace quorvel::x11
