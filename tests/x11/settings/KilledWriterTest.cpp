#include <csignal>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/x11/settings/PlistUserDefaults.h"
#include "support/TemporaryDirectory.h"
#include "x11/settings/FileCalls.h"

namespace quorvel::x11 {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

// A number that a process leaves behind even when it is killed.
class SharedNumber {
public:
    SharedNumber() : memory(::mmap(nullptr, sizeof(int), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)) {}
    SharedNumber(const SharedNumber&) = delete;
    SharedNumber& operator=(const SharedNumber&) = delete;
    ~SharedNumber() { ::munmap(memory, sizeof(int)); }

    volatile int& value() const { return *static_cast<volatile int*>(memory); }

private:
    void* memory;
};

class KilledWriter : public testing::Test {
protected:
    // Sets, replaces and removes values of all kinds; each change depends on its number alone.
    static void change(PlistUserDefaults& defaults, int number)
    {
        const std::string key = "key" + std::to_string(number % 7);
        switch (number % 4) {
        case 0:
            defaults.setObject(key, {std::string(static_cast<std::size_t>(number % 5) * 700, 'x')});
            break;
        case 1:
            defaults.setObject(key, {PropertyArray{{std::int64_t{number}}, {0.1 * number}, {true}}});
            break;
        case 2:
            defaults.setObject(key, {PropertyData(static_cast<std::size_t>(number % 300), std::byte{0xA5})});
            break;
        default:
            defaults.removeObject(key);
            break;
        }
    }

    // What the file holds after so many changes.
    PropertyDictionary expectedAfter(int changes)
    {
        while (modelled < changes) {
            change(model, ++modelled);
        }
        return contentsOf(model);
    }

    static PropertyDictionary contentsOf(const PlistUserDefaults& defaults)
    {
        PropertyDictionary contents;
        for (int number = 0; number < 7; ++number) {
            const std::string key = "key" + std::to_string(number);
            if (const auto value = defaults.object(key)) {
                contents.emplace(key, *value);
            }
        }
        return contents;
    }

    PlistUserDefaults open()
    {
        return {SettingsFile(path), [this](std::string_view line) { lines.emplace_back(line); }};
    }

    // Runs the work in a process of its own and answers whether it was killed.
    static bool isKilled(const std::function<void()>& work)
    {
        const pid_t child = ::fork();
        if (child == 0) {
            work();
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
    }

    std::vector<std::string> namesInDirectory() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(path.parent_path())) {
            names.push_back(entry.path().filename());
        }
        return names;
    }

    xtest::TemporaryDirectory directory;
    fs::path path = directory.path() / "quorvel" / "settings.plist";
    std::vector<std::string> lines;
    SharedNumber returned; // the number of the last change whose call has returned

private:
    PlistUserDefaults model{SettingsFile(directory.path() / "model" / "settings.plist"), [](std::string_view) {}};
    int modelled = 0;
};

TEST_F(KilledWriter, TheFileIsOnDiskBeforeItGetsItsNameAndTheNameIsBeforeTheCallReturns)
{
    auto defaults = open();
    fileCalls::record();
    defaults.setObject("a", {true});
    EXPECT_THAT(fileCalls::recorded(), ElementsAre("mkostemp", "write", "fsync", "rename", "fsync"));
}

TEST_F(KilledWriter, NeverLeavesLessThanTheChangeBeforeTheLastOne)
{
    constexpr int kills = 500;
    constexpr int changesEach = 3;
    constexpr std::size_t callsEach = 5;
    std::mt19937 random(20261121);
    int done = 0;
    int lost = 0;
    for (int round = 0; round < kills; ++round) {
        const std::size_t call = random() % (changesEach * callsEach);
        const double writtenFraction = static_cast<double>(random() % 1000) / 1000.0;
        returned.value() = done;
        ASSERT_TRUE(isKilled([&] {
            auto defaults = open();
            fileCalls::dieAt(call, writtenFraction);
            for (int number = done + 1; number < done + 100; ++number) {
                change(defaults, number);
                returned.value() = number;
            }
        }));
        const auto found = contentsOf(open());
        ASSERT_THAT(lines, IsEmpty());
        const int last = returned.value();
        const bool isLastMissing = found == expectedAfter(last);
        if (!isLastMissing) {
            ASSERT_EQ(found, expectedAfter(last + 1)) << "round " << round << ", call " << call;
        }
        lost += isLastMissing ? 1 : 0;
        done = isLastMissing ? last : last + 1;
    }
    EXPECT_GT(lost, kills / 4);
    EXPECT_LT(lost, kills);
    EXPECT_THAT(namesInDirectory(), ElementsAre("settings.plist"));
}

TEST_F(KilledWriter, LeavesAllValuesOfOneStepOrNone)
{
    PropertyDictionary step;
    for (int number = 0; number < 7; ++number) {
        step.emplace("key" + std::to_string(number), PropertyValue{std::string(100, 'y')});
    }
    open().setObject("key0", {std::int64_t{1}});
    const auto before = contentsOf(open());
    for (std::size_t call = 0; call < 4; ++call) {
        ASSERT_TRUE(isKilled([&] {
            auto defaults = open();
            fileCalls::dieAt(call, 0.5);
            defaults.setObjects(step);
        }));
        EXPECT_EQ(contentsOf(open()), before) << call;
    }
    ASSERT_TRUE(isKilled([&] {
        auto defaults = open();
        fileCalls::dieAt(4, 0.5);
        defaults.setObjects(step);
    }));
    EXPECT_EQ(contentsOf(open()), step);
}

} // namespace
} // namespace quorvel::x11
