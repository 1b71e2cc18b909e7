#include "platform/simulated/SimulatedBundle.h"

#include <utility>

#include "platform/simulated/Journal.h"

namespace quorvel {

namespace {

std::string fileName(std::string_view name, std::string_view extension)
{
    return fmt::format("{}.{}", name, extension);
}

} // namespace

std::expected<std::optional<std::string>, std::string> SimulatedBundle::resource(std::string_view name,
                                                                                 std::string_view extension) const
{
    journal.record("Bundle.resource({}, {})", name, extension);
    const auto entry = resources.find(fileName(name, extension));
    if (entry == resources.end()) {
        return std::nullopt;
    }
    const auto& content = entry->second;
    if (!content) {
        return std::unexpected(content.error());
    }
    return *content;
}

std::optional<Image> SimulatedBundle::image(std::string_view name) const
{
    journal.record("Bundle.image({})", name);
    std::string text(name);
    return images.contains(text) ? std::optional(Image{std::move(text), false}) : std::nullopt;
}

std::string SimulatedBundle::shortVersion() const
{
    journal.record("Bundle.shortVersion()");
    return version;
}

std::string SimulatedBundle::userGuideAddress() const
{
    journal.record("Bundle.userGuideAddress()");
    return guideAddress;
}

void SimulatedBundle::addResource(std::string_view name, std::string_view extension, std::string content)
{
    resources.insert_or_assign(fileName(name, extension), std::move(content));
}

void SimulatedBundle::addUnreadableResource(std::string_view name, std::string_view extension, std::string error)
{
    resources.insert_or_assign(fileName(name, extension), std::unexpected(std::move(error)));
}

void SimulatedBundle::removeResource(std::string_view name, std::string_view extension)
{
    resources.erase(fileName(name, extension));
}

} // namespace quorvel
