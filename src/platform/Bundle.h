#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace quorvel {

// A picture that belongs to the application, known by its name.
struct Image {
    std::string name;
    bool isTemplate = false; // drawn in the colour of the text around it; only its shape counts

    bool operator==(const Image&) const = default;
};

// The resources that ship with the program.
class Bundle {
public:
    Bundle() = default;
    Bundle(const Bundle&) = delete;
    Bundle& operator=(const Bundle&) = delete;
    virtual ~Bundle() = default;

    // The whole content of resource `name`.`extension`. Nothing if there is no such resource; an error text, fit for
    // a log line, if it exists and cannot be read.
    virtual std::expected<std::optional<std::string>, std::string> resource(std::string_view name,
                                                                            std::string_view extension) const = 0;

    // The image of that name, or nothing.
    virtual std::optional<Image> image(std::string_view name) const = 0;

    // The version as a person reads it, "1.2.3".
    virtual std::string shortVersion() const = 0;

    // The address of the user guide that is installed with the program; empty if it is not installed.
    virtual std::string userGuideAddress() const = 0;
};

} // namespace quorvel
