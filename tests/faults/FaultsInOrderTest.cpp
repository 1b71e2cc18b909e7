// Every call of a port on every journey of a person fails once, in each of the ways in which it can.

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <fmt/format.h>
#include <gtest/gtest.h>

#include "tests/faults/FaultSession.h"
#include "tests/faults/Journeys.h"
#include "tests/support/FatalErrors.h"
#include "tests/support/ReliabilityRecord.h"

namespace quorvel {
namespace {

// A line of the log without what differs from one time to the next.
std::string beginningOf(const std::string& line)
{
    const auto beginning = line.substr(0, line.find_first_of(":(\"0123456789"));
    return beginning.substr(0, beginning.find_last_not_of(' ') + 1);
}

std::set<std::string> linesOf(const FaultSession& session)
{
    std::set<std::string> lines;
    std::ranges::transform(session.desktop.log.lines(), std::inserter(lines, lines.end()), beginningOf);
    return lines;
}

std::string firstWord(const std::string& text)
{
    return text.substr(0, text.find(' '));
}

// The lines that the log has where nothing fails.
std::set<std::string> usualLines()
{
    std::set<std::string> lines;
    for (const auto& journey : journeys()) {
        FaultSession session;
        session.furnish();
        journey.go(session);
        lines.merge(linesOf(session));
    }
    return lines;
}

// The journey on which nothing fails, which the others are held against.
struct CleanRun {
    explicit CleanRun(const Journey& journey)
    {
        FaultSession session;
        session.furnish();
        session.faults.arm();
        outcome = journey.go(session);
        calls = session.faults.calls();
        session.faults.disarm();
        alerts = session.desktop.alerts.shown().size();
        session.leave();
        problem = session.leftover();
        settings = session.desktop.userDefaults.contents();
        session.furnish();
        outcomeAgain = journey.go(session);
    }

    std::string outcome;
    std::string outcomeAgain;
    std::vector<PortFaults::Call> calls;
    std::size_t alerts = 0;
    std::optional<std::string> problem;
    FaultSession::Settings settings;
};

class FaultyRun {
public:
    FaultyRun(const Journey& journey, const CleanRun& clean, PortFaults::Fault fault)
        : journey(journey),
          clean(clean),
          fault(fault),
          name(clean.calls.at(fault.call).name),
          misreadSetting(name.starts_with(reading) ? name.substr(reading.size()) : std::string())
    {}

    // What is not as it should be, during, after or the next time; nothing if all is well.
    std::optional<std::string> problem()
    {
        session.furnish();
        session.faults.arm(fault);
        if (const auto fatal = fatalErrorOf([&] { outcome = journey.go(session); })) {
            return "fatal error: " + *fatal;
        }
        session.faults.disarm();
        lines = linesOf(session);
        alerts = session.desktop.alerts.shown().size();
        session.leave();
        const auto found = problemAfterwards();
        return found ? found : problemNextTime();
    }

    // What the person saw that is not there otherwise.
    std::set<std::string> seen(const std::set<std::string>& usualLines) const
    {
        std::set<std::string> result;
        for (const auto& line : lines) {
            if (!usualLines.contains(line)) {
                result.insert("“" + line + "”");
            }
        }
        if (alerts > clean.alerts) {
            result.insert("an alert");
        }
        if (outcome != clean.outcome) {
            result.insert("something was not done");
        }
        return result;
    }

private:
    static constexpr std::size_t hotKeyCount = 3;
    static constexpr std::string_view reading = "UserDefaults.object ";

    std::optional<std::string> problemAfterwards()
    {
        // A window that did not go when it was told to cannot be noticed; it goes with the next one.
        if (auto found = name == "OverlayWindow.orderOut" ? std::nullopt : session.leftover()) {
            return found;
        }
        if (auto found = session.lostSetting(clean.settings, misreadSetting)) {
            return found;
        }
        if (session.app && session.desktop.hotKeys.registered().size() < hotKeyCount && !mayLackHotKeys()) {
            return "hot keys are lacking: " + session.hotKeys();
        }
        const auto observers = session.desktop.accessibility.observerCount();
        return observers == 0 ? std::nullopt : std::optional(fmt::format("{} observers are left", observers));
    }

    // Those that the system refused, those whose setting was misread, and all while the preferences seem to be open.
    bool mayLackHotKeys() const
    {
        return name.starts_with("HotKeys.") || misreadSetting.ends_with("KeyCode") ||
               name == "PreferencesUi.createWindow" || name == "PreferencesWindow.show";
    }

    std::optional<std::string> problemNextTime()
    {
        // The system keeps a hot key that it did not take back, and the preferences the themes that they have read.
        if (name == "HotKeys.unregisterHotKey" || misreadSetting == "savedThemes") {
            session.quit();
        }
        session.furnish();
        std::string nextOutcome;
        if (const auto fatal = fatalErrorOf([&] { nextOutcome = journey.go(session); })) {
            return "fatal error the next time: " + *fatal;
        }
        if (nextOutcome != clean.outcome) {
            return fmt::format("the next time: {}; and not: {}", nextOutcome, clean.outcome);
        }
        session.leave();
        return session.leftover();
    }

    const Journey& journey;
    const CleanRun& clean;
    PortFaults::Fault fault;
    std::string name;
    std::string misreadSetting;
    FaultSession session;
    std::string outcome;
    std::set<std::string> lines;
    std::size_t alerts = 0;
};

class FaultsInOrderReliability : public testing::TestWithParam<Journey> {
protected:
    // One for each kind of call, such as "Screens.screens".
    ReliabilityRecord& recordOf(const std::string& call)
    {
        const auto kind = firstWord(call);
        return records.try_emplace(kind, "The desktop in memory, call by call", kind).first->second;
    }

private:
    std::map<std::string, ReliabilityRecord> records;
};

TEST_P(FaultsInOrderReliability, EveryCallFailsOnceInEachWay)
{
    const CleanRun clean(GetParam());
    ASSERT_EQ(clean.problem, std::nullopt);
    ASSERT_EQ(clean.outcome, clean.outcomeAgain);
    ASSERT_FALSE(clean.calls.empty());
    const auto usual = usualLines();
    for (std::size_t call = 0; call < clean.calls.size(); ++call) {
        const auto& [name, ways] = clean.calls[call];
        auto& record = recordOf(name);
        for (std::size_t way = 0; way < ways; ++way) {
            record.tried();
            FaultyRun run(GetParam(), clean, {call, way});
            if (const auto problem = run.problem()) {
                ADD_FAILURE() << "call " << call << ", " << name << ", way " << way << ": " << *problem;
                continue;
            }
            for (const auto& text : run.seen(usual)) {
                record.saw(text);
            }
            record.survived("");
        }
    }
}

std::string testName(const testing::TestParamInfo<Journey>& info)
{
    std::string name;
    std::ranges::copy_if(info.param.name, std::back_inserter(name),
                         [](unsigned char each) { return std::isalnum(each) != 0; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(Journeys, FaultsInOrderReliability, testing::ValuesIn(journeys()), testName);

// The tests above would find nothing if the faults went nowhere.
TEST(PortFaults, OneCallFailsInTheWayThatWasChosen)
{
    PortFaults faults;
    const auto ask = [&] { return faults.attempt("Port.call", [] { return 1; }, 2, 3); };
    EXPECT_EQ(ask(), 1);
    faults.arm(PortFaults::Fault{.call = 1, .way = 1});
    EXPECT_EQ(ask(), 1);
    EXPECT_EQ(ask(), 3);
    EXPECT_EQ(ask(), 1);
    EXPECT_EQ(faults.calls().size(), 3U);
    EXPECT_EQ(faults.calls().front().ways, 2U);
    faults.arm();
    EXPECT_EQ(ask(), 1);
    EXPECT_EQ(faults.calls().size(), 1U);
}

TEST(PortFaults, ACallWithoutAResultHasNoEffect)
{
    PortFaults faults;
    int effects = 0;
    const auto act = [&] { faults.attemptEffect("Port.act", [&] { ++effects; }); };
    faults.arm(PortFaults::Fault{.call = 0, .way = 0});
    act();
    EXPECT_EQ(effects, 0);
    act();
    EXPECT_EQ(effects, 1);
}

} // namespace
} // namespace quorvel
