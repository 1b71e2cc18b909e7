#include "platform/simulated/SimulatedOverlayWindows.h"

#include <algorithm>
#include <utility>

#include "base/LogText.h"
#include "platform/simulated/Journal.h"
#include "platform/simulated/SimulatedOverlayWindow.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

namespace {

std::string_view portOf(OverlayKind kind)
{
    return kind == OverlayKind::panel ? "OverlayPanel" : "OverlayWindow";
}

} // namespace

SimulatedOverlayWindows::SimulatedOverlayWindows(Journal& journal, const SimulatedWindowServer& windowServer)
    : journal(journal), windowServer(windowServer)
{}

SimulatedOverlayWindows::~SimulatedOverlayWindows() = default;

std::unique_ptr<OverlayWindow> SimulatedOverlayWindows::createWindow(const WindowDescription& description)
{
    journal.record("OverlayWindows.createWindow({}, {})", records.size() + 1, logText(description.contentRect));
    return std::make_unique<SimulatedOverlayWindow>(*this, create(description, OverlayKind::window));
}

std::unique_ptr<OverlayPanel> SimulatedOverlayWindows::createPanel(const WindowDescription& description,
                                                                   std::function<void(const KeyEvent&)> onKeyDown)
{
    journal.record("OverlayWindows.createPanel({}, {})", records.size() + 1, logText(description.contentRect));
    auto record = create(description, OverlayKind::panel);
    record->onKeyDown = std::move(onKeyDown);
    return std::make_unique<SimulatedOverlayWindow>(*this, std::move(record));
}

std::vector<SimulatedOverlayWindows::Record> SimulatedOverlayWindows::visible() const
{
    return {stacking.begin(), stacking.end()};
}

SimulatedOverlayWindows::Record SimulatedOverlayWindows::keyPanel() const
{
    return windowServer.frontmostProcess() == SimulatedWindowServer::ownProcess ? key : nullptr;
}

std::shared_ptr<OverlayWindowRecord> SimulatedOverlayWindows::create(const WindowDescription& description,
                                                                     OverlayKind kind)
{
    auto record = std::make_shared<OverlayWindowRecord>();
    record->number = records.size() + 1;
    record->kind = kind;
    record->description = description;
    record->frame = description.contentRect;
    records.push_back(record);
    return record;
}

void SimulatedOverlayWindows::note(const OverlayWindowRecord& record, std::string_view call, std::string_view detail)
{
    journal.record("{}.{}({}{}{})", portOf(record.kind), call, record.number, detail.empty() ? "" : ", ", detail);
}

void SimulatedOverlayWindows::show(const std::shared_ptr<OverlayWindowRecord>& record)
{
    std::erase(stacking, record);
    const auto isNotAbove = [&](const Record& each) { return each->description.level <= record->description.level; };
    stacking.insert(std::ranges::find_if(stacking, isNotAbove), record);
    record->isVisible = true;
    record->isClosed = false;
}

void SimulatedOverlayWindows::hide(const std::shared_ptr<OverlayWindowRecord>& record)
{
    std::erase(stacking, record);
    record->isVisible = false;
    if (key == record) {
        key = nullptr;
    }
}

void SimulatedOverlayWindows::makeKey(const std::shared_ptr<OverlayWindowRecord>& record)
{
    if (record->isVisible) {
        key = record;
    }
}

} // namespace quorvel
