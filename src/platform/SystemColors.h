#pragma once

#include "base/Color.h"

namespace quorvel {

// Colours that the desktop chooses.
class SystemColors {
public:
    SystemColors() = default;
    SystemColors(const SystemColors&) = delete;
    SystemColors& operator=(const SystemColors&) = delete;
    virtual ~SystemColors() = default;

    virtual Color accent() const = 0;
    virtual Color blue() const = 0;
    virtual Color green() const = 0;
    virtual Color yellow() const = 0;
};

} // namespace quorvel
