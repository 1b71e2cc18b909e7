#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "platform/OverlayWindows.h"
#include "platform/simulated/OverlayWindowRecord.h"

namespace quorvel {

class Journal;
class SimulatedWindowServer;

class SimulatedOverlayWindows final : public OverlayWindows {
public:
    using Record = std::shared_ptr<const OverlayWindowRecord>;

    SimulatedOverlayWindows(Journal& journal, const SimulatedWindowServer& windowServer);
    ~SimulatedOverlayWindows() override;

    std::unique_ptr<OverlayWindow> createWindow(const WindowDescription& description) override;
    std::unique_ptr<OverlayPanel> createPanel(const WindowDescription& description,
                                              std::function<void(const KeyEvent&)> onKeyDown) override;

    // Every window since the beginning, closed ones included, in order of creation.
    std::vector<Record> all() const { return {records.begin(), records.end()}; }
    // Those on screen, front to back.
    std::vector<Record> visible() const;

    // The panel that key-downs go to: the one that was made key last, while it is shown and this program is the
    // active one. Null for none.
    Record keyPanel() const;

private:
    friend class SimulatedOverlayWindow;

    std::shared_ptr<OverlayWindowRecord> create(const WindowDescription& description, OverlayKind kind);
    void note(const OverlayWindowRecord& record, std::string_view call, std::string_view detail = {});
    void show(const std::shared_ptr<OverlayWindowRecord>& record);
    void hide(const std::shared_ptr<OverlayWindowRecord>& record);
    void makeKey(const std::shared_ptr<OverlayWindowRecord>& record);

    Journal& journal;
    const SimulatedWindowServer& windowServer;
    std::vector<std::shared_ptr<OverlayWindowRecord>> records;
    std::vector<std::shared_ptr<OverlayWindowRecord>> stacking; // the shown ones, front to back
    std::shared_ptr<OverlayWindowRecord> key;
};

} // namespace quorvel
