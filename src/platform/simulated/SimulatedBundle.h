#pragma once

#include <expected>
#include <map>
#include <set>
#include <string>

#include "platform/Bundle.h"

namespace quorvel {

class Journal;

class SimulatedBundle final : public Bundle {
public:
    explicit SimulatedBundle(Journal& journal) : journal(journal) {}

    std::expected<std::optional<std::string>, std::string> resource(std::string_view name,
                                                                    std::string_view extension) const override;
    std::optional<Image> image(std::string_view name) const override;
    std::string shortVersion() const override;
    std::string userGuideAddress() const override;

    void addResource(std::string_view name, std::string_view extension, std::string content);
    void addUnreadableResource(std::string_view name, std::string_view extension, std::string error);
    void removeResource(std::string_view name, std::string_view extension);

    void addImage(std::string_view name) { images.emplace(name); }
    void removeImage(std::string_view name) { images.erase(std::string(name)); }

    std::string version = "1.0";
    std::string guideAddress = "file:///guide/index.html";

private:
    Journal& journal;
    std::map<std::string, std::expected<std::string, std::string>> resources; // by file name
    std::set<std::string> images{"MenuBarIcon", "ColorLogoTransparent"};
};

} // namespace quorvel
