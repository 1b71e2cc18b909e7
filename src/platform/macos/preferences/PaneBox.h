#pragma once

#include <functional>

#include "platform/macos/Retained.h"
#include "platform/macos/preferences/FlippedView.h"

namespace quorvel::macos {

// Owns the view that others stand in, and lays them out whenever it has got another size.
class PaneBox {
public:
    explicit PaneBox(std::function<void()> layOut = {});
    PaneBox(const PaneBox&) = delete;
    PaneBox& operator=(const PaneBox&) = delete;
    ~PaneBox();

    NSView* view() const { return box.get(); }
    void add(NSView* part) const { [box.get() addSubview:part]; }
    NSSize size() const { return [box.get() bounds].size; }

private:
    Retained<QuorvelFlippedView*> box;
};

} // namespace quorvel::macos
