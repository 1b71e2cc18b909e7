#include "platform/simulated/SimulatedAccessibility.h"

#include <algorithm>
#include <utility>

#include "platform/simulated/Journal.h"
#include "platform/simulated/JournalText.h"
#include "platform/simulated/SimulatedAxElement.h"
#include "platform/simulated/SimulatedMainQueue.h"
#include "platform/simulated/SimulatedPermissions.h"
#include "platform/simulated/SimulatedWindowServer.h"

namespace quorvel {

namespace {

std::expected<AxValue, AxError> readWindow(const SimulatedWindow& window, std::string_view name)
{
    if (name == axNames::role) {
        return window.role;
    }
    if (name == axNames::title) {
        return window.title;
    }
    if (name == axNames::position) {
        return window.frame().origin();
    }
    if (name == axNames::size) {
        return window.frame().size();
    }
    if (name == axNames::minimized) {
        return window.isMinimized();
    }
    return std::unexpected(axErrors::attributeUnsupported);
}

bool isWindowNotification(std::string_view name)
{
    return name == axNames::moved || name == axNames::resized || name == axNames::elementDestroyed;
}

} // namespace

SimulatedAccessibility::SimulatedAccessibility(Journal& journal, SimulatedMainQueue& mainQueue,
                                               SimulatedPermissions& permissions, SimulatedWindowServer& windowServer)
    : journal(journal), mainQueue(mainQueue), permissions(permissions), windowServer(windowServer)
{}

SimulatedAccessibility::~SimulatedAccessibility() = default;

AxElementRef SimulatedAccessibility::applicationElement(ProcessId process)
{
    journal.record("Accessibility.applicationElement({})", process);
    return std::make_shared<SimulatedAxElement>(SimulatedElementKind::application, static_cast<std::uint64_t>(process));
}

std::expected<AxValue, AxError> SimulatedAccessibility::copyAttribute(const AxElementRef& element,
                                                                      std::string_view name)
{
    journal.record("Accessibility.copyAttribute({}, {})", journalText(element), name);
    const auto target = resolve(element);
    return target ? read(*target, name) : std::unexpected(target.error());
}

std::expected<void, AxError> SimulatedAccessibility::setAttribute(const AxElementRef& element, std::string_view name,
                                                                  const AxValue& value)
{
    journal.record("Accessibility.setAttribute({}, {}, {})", journalText(element), name, journalText(value));
    const auto target = resolve(element);
    if (!target) {
        return std::unexpected(target.error());
    }
    if (const auto error = target->element->writingError(name)) {
        return std::unexpected(*error);
    }
    if (target->window == nullptr) {
        return writeApplication(target->element->process(), name, value);
    }
    return write(*target->window, name, value);
}

std::expected<void, AxError> SimulatedAccessibility::performAction(const AxElementRef& element, std::string_view name)
{
    journal.record("Accessibility.performAction({}, {})", journalText(element), name);
    const auto target = resolve(element);
    if (!target) {
        return std::unexpected(target.error());
    }
    if (const auto error = target->element->actionError(name)) {
        return std::unexpected(*error);
    }
    if (target->window == nullptr || name != axNames::raise) {
        return std::unexpected(axErrors::actionUnsupported);
    }
    windowServer.raise(*target->window);
    return {};
}

std::expected<ProcessId, AxError> SimulatedAccessibility::processId(const AxElementRef& element)
{
    journal.record("Accessibility.processId({})", journalText(element));
    const auto target = resolve(element);
    return target ? std::expected<ProcessId, AxError>(target->element->process()) : std::unexpected(target.error());
}

std::expected<std::unique_ptr<AxObserver>, AxError>
SimulatedAccessibility::createObserver(ProcessId process, std::function<void(std::string_view name)> callback)
{
    journal.record("Accessibility.createObserver({})", process);
    if (observerError) {
        return std::unexpected(*observerError);
    }
    if (!mayBeCalled()) {
        return std::unexpected(axErrors::apiDisabled);
    }
    auto registration = std::make_shared<Registration>(Registration{process, std::move(callback), {}, false});
    std::erase_if(observers, [](const auto& each) { return each.expired(); });
    observers.push_back(registration);
    return std::make_unique<SimulatedAxObserver>(*this, std::move(registration));
}

AxElementRef SimulatedAccessibility::elementOf(const SimulatedWindow& window) const
{
    return std::make_shared<SimulatedAxElement>(SimulatedElementKind::window, window.number);
}

void SimulatedAccessibility::notify(const SimulatedWindow& window, std::string_view notification)
{
    const std::pair watched{window.number, std::string(notification)};
    for (const auto& each : observers) {
        const auto observer = each.lock();
        if (!observer || !observer->isDelivering || !observer->notifications.contains(watched)) {
            continue;
        }
        mainQueue.async([observer = each, watched] {
            const auto current = observer.lock();
            if (current && current->notifications.contains(watched)) {
                current->callback(watched.second);
            }
        });
    }
}

void SimulatedAccessibility::notifyUnasked(ProcessId process, std::string_view notification)
{
    for (const auto& each : observers) {
        const auto observer = each.lock();
        if (observer && observer->isDelivering && observer->process == process) {
            mainQueue.async([observer = each, name = std::string(notification)] {
                if (const auto current = observer.lock()) {
                    current->callback(name);
                }
            });
        }
    }
}

bool SimulatedAccessibility::mayBeCalled() const
{
    return !callsRefused && permissions.isGiven(Permission::accessibility);
}

std::expected<SimulatedAccessibility::Target, AxError>
SimulatedAccessibility::resolve(const AxElementRef& element) const
{
    const auto* named = dynamic_cast<const SimulatedAxElement*>(element.get());
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (!mayBeCalled()) {
        return std::unexpected(axErrors::apiDisabled);
    }
    const bool isWindow = named->kind == SimulatedElementKind::window;
    auto* window = isWindow ? windowServer.window(named->id) : nullptr;
    auto* application = isWindow ? (window != nullptr ? &window->application : nullptr)
                                 : windowServer.application(static_cast<ProcessId>(named->id));
    if (application == nullptr) {
        return std::unexpected(axErrors::invalidElement);
    }
    if (application->isHanging()) {
        return std::unexpected(axErrors::cannotComplete);
    }
    return isWindow ? Target{window, window} : Target{application, nullptr};
}

std::expected<AxValue, AxError> SimulatedAccessibility::read(const Target& target, std::string_view name) const
{
    if (const auto error = target.element->readingError(name)) {
        return std::unexpected(*error);
    }
    if (auto value = target.element->falseAnswer(name)) {
        return *std::move(value);
    }
    return target.window != nullptr ? readWindow(*target.window, name)
                                    : readApplication(target.element->process(), name);
}

std::expected<void, AxError> SimulatedAccessibility::writeApplication(ProcessId process, std::string_view name,
                                                                      const AxValue& value)
{
    if (name != axNames::frontmost || value != AxValue(true)) {
        return std::unexpected(axErrors::attributeUnsupported);
    }
    windowServer.activate(process);
    return {};
}

std::expected<AxValue, AxError> SimulatedAccessibility::readApplication(ProcessId process, std::string_view name) const
{
    const auto& application = *windowServer.application(process);
    if (name == axNames::focusedWindow) {
        const auto* window = windowServer.frontWindow(application);
        return window != nullptr ? std::expected<AxValue, AxError>(elementOf(*window))
                                 : std::unexpected(axErrors::noValue);
    }
    if (name == axNames::windows) {
        std::vector<AxElementRef> elements;
        for (const auto* each : windowServer.windows(application)) {
            elements.push_back(elementOf(*each));
        }
        return elements;
    }
    return std::unexpected(axErrors::attributeUnsupported);
}

std::expected<void, AxError> SimulatedAccessibility::write(SimulatedWindow& window, std::string_view name,
                                                           const AxValue& value)
{
    const auto* position = std::get_if<AxPoint>(&value);
    const auto* size = std::get_if<Size>(&value);
    const auto* minimized = std::get_if<bool>(&value);
    if (name == axNames::position && position != nullptr) {
        windowServer.move(window, *position);
    } else if (name == axNames::size && size != nullptr) {
        windowServer.resize(window, *size);
    } else if (name == axNames::minimized && minimized != nullptr) {
        *minimized ? windowServer.minimize(window) : windowServer.restore(window);
    } else {
        const bool isSettable = name == axNames::position || name == axNames::size || name == axNames::minimized;
        return std::unexpected(isSettable ? axErrors::illegalArgument : axErrors::attributeUnsupported);
    }
    return {};
}

std::expected<void, AxError> SimulatedAccessibility::addNotification(Registration& registration,
                                                                     const AxElementRef& element, std::string_view name)
{
    journal.record("AxObserver.addNotification({}, {})", journalText(element), name);
    const auto target = resolve(element);
    if (!target) {
        return std::unexpected(target.error());
    }
    if (target->window == nullptr || !isWindowNotification(name)) {
        return std::unexpected(axErrors::notificationUnsupported);
    }
    registration.notifications.emplace(target->window->number, name);
    return {};
}

std::expected<void, AxError> SimulatedAccessibility::removeNotification(Registration& registration,
                                                                        const AxElementRef& element,
                                                                        std::string_view name)
{
    journal.record("AxObserver.removeNotification({}, {})", journalText(element), name);
    const auto* named = dynamic_cast<const SimulatedAxElement*>(element.get());
    if (named == nullptr) {
        return std::unexpected(axErrors::illegalArgument);
    }
    if (registration.notifications.erase({named->id, std::string(name)}) == 0) {
        return std::unexpected(axErrors::notificationUnsupported);
    }
    return {};
}

void SimulatedAccessibility::startDelivery(Registration& registration)
{
    journal.record("AxObserver.startDelivery({})", registration.process);
    registration.isDelivering = true;
}

} // namespace quorvel
