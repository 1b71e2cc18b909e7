#pragma once

#include <utility>

#include <unistd.h>

namespace quorvel::xtest {

// Owns one file descriptor.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number(number) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor(FileDescriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    ~FileDescriptor() { reset(); }

    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        if (this != &other) {
            reset();
            number = std::exchange(other.number, -1);
        }
        return *this;
    }

    int get() const { return number; }

    void reset()
    {
        if (number >= 0) {
            close(std::exchange(number, -1));
        }
    }

private:
    int number = -1;
};

} // namespace quorvel::xtest
