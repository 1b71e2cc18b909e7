#pragma once

#include <utility>

#include <unistd.h>

namespace quorvel::x11 {

// Owns an open file; a negative number owns none.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number(number) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor(FileDescriptor&& other) noexcept : number(std::exchange(other.number, -1)) {}
    ~FileDescriptor() { close(); }

    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        if (this != &other) {
            close();
            number = std::exchange(other.number, -1);
        }
        return *this;
    }

    int get() const { return number; }
    bool isOpen() const { return number >= 0; }

private:
    void close()
    {
        if (isOpen()) {
            ::close(std::exchange(number, -1));
        }
    }

    int number = -1;
};

} // namespace quorvel::x11
