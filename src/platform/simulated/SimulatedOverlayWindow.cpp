#include "platform/simulated/SimulatedOverlayWindow.h"

#include <string>
#include <utility>

#include "base/LogText.h"
#include "platform/simulated/SimulatedOverlayWindows.h"

namespace quorvel {

SimulatedOverlayWindow::SimulatedOverlayWindow(SimulatedOverlayWindows& owner,
                                               std::shared_ptr<OverlayWindowRecord> record)
    : owner(owner), record(std::move(record))
{}

SimulatedOverlayWindow::~SimulatedOverlayWindow()
{
    if (!record->isClosed) {
        close();
    }
}

ScreenRect SimulatedOverlayWindow::frame() const
{
    return record->frame;
}

void SimulatedOverlayWindow::setFrame(const ScreenRect& frame)
{
    owner.note(*record, "setFrame", logText(frame));
    record->frame = frame;
}

void SimulatedOverlayWindow::setFrameAutosaveName(std::string_view name)
{
    owner.note(*record, "setFrameAutosaveName", name);
    record->frameAutosaveName = name;
}

void SimulatedOverlayWindow::setContent(DrawList content)
{
    owner.note(*record, "setContent", std::to_string(content.commands.size()));
    record->content = std::move(content);
}

void SimulatedOverlayWindow::setClipsToBounds(bool clips)
{
    owner.note(*record, "setClipsToBounds", clips ? "true" : "false");
    record->clipsToBounds = clips;
}

void SimulatedOverlayWindow::orderFrontRegardless()
{
    owner.note(*record, "orderFrontRegardless");
    owner.show(record);
}

void SimulatedOverlayWindow::orderOut()
{
    owner.note(*record, "orderOut");
    owner.hide(record);
}

void SimulatedOverlayWindow::close()
{
    owner.note(*record, "close");
    owner.hide(record);
    record->isClosed = true;
}

bool SimulatedOverlayWindow::isVisible() const
{
    return record->isVisible;
}

NotificationObject SimulatedOverlayWindow::notificationObject() const
{
    return reinterpret_cast<NotificationObject>(record.get());
}

void SimulatedOverlayWindow::makeKey()
{
    owner.note(*record, "makeKey");
    owner.makeKey(record);
}

bool SimulatedOverlayWindow::isKey() const
{
    return owner.keyPanel() == record;
}

} // namespace quorvel
