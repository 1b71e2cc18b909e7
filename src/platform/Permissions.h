#pragma once

namespace quorvel {

enum class Permission { accessibility, inputMonitoring };

// What the system allows this program to do.
class Permissions {
public:
    Permissions() = default;
    Permissions(const Permissions&) = delete;
    Permissions& operator=(const Permissions&) = delete;
    virtual ~Permissions() = default;

    virtual bool isGranted(Permission permission) const = 0;

    // Enters this program into the system's list for that permission, without a prompt of the system's own.
    virtual void request(Permission permission) = 0;

    // Whether there is such a place as openSettings() opens.
    virtual bool hasSettings(Permission permission) const = 0;

    // Opens the system's settings where that permission is given; false if there is no such place.
    virtual bool openSettings(Permission permission) = 0;
};

} // namespace quorvel
