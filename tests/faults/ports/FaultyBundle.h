#pragma once

#include "platform/Bundle.h"
#include "tests/faults/PortFaults.h"

namespace quorvel {

class FaultyBundle final : public Bundle {
public:
    FaultyBundle(Bundle& real, PortFaults& faults) : real(real), faults(faults) {}

    std::expected<std::optional<std::string>, std::string> resource(std::string_view name,
                                                                    std::string_view extension) const override
    {
        using Result = std::expected<std::optional<std::string>, std::string>;
        return faults.attempt(
            "Bundle.resource", [&] { return real.resource(name, extension); }, Result(std::nullopt),
            Result(std::unexpected(std::string("Input/output error"))), Result("{"));
    }

    std::optional<Image> image(std::string_view name) const override
    {
        return faults.attempt("Bundle.image", [&] { return real.image(name); }, std::nullopt);
    }

    std::string shortVersion() const override { return real.shortVersion(); }

    std::string userGuideAddress() const override
    {
        return faults.attempt("Bundle.userGuideAddress", [&] { return real.userGuideAddress(); }, std::string());
    }

private:
    Bundle& real;
    PortFaults& faults;
};

} // namespace quorvel
