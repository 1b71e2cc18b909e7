#pragma once

namespace quorvel {

class SystemColors;
class TextMetrics;

// What views ask of the platform while they are laid out. Both outlive the view.
struct ViewEnvironment {
    const TextMetrics& textMetrics;
    const SystemColors& systemColors;
};

} // namespace quorvel
