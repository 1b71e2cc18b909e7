#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>

#include "support/TestDisplay.h"

namespace quorvel::x11 {

// The whole program in this process, so that a test can look at the widgets of its windows. The program has this
// thread; the person who works with it acts in a thread of her own, as people do, since a drag or an alert keeps the
// program in an inner loop. Her keyboard may be used from there, all else of the display only in what is asked below.
class ShellSession {
public:
    // The configuration folder outlives the session.
    ShellSession(xtest::TestDisplay& display, const std::filesystem::path& configuration);
    ~ShellSession();

    // Runs the program until the person has done what she wants.
    void run(const std::function<void()>& person);

    // For the person. Waits until the predicate holds; the program's thread asks it in every turn of its loop. Throws
    // HarnessError naming `what` when patience is over.
    void waitFor(const std::string& what, const std::function<bool()>& predicate);

    // The answer as of the next turn.
    template <class Question>
    auto ask(const Question& question)
    {
        std::optional<std::invoke_result_t<Question>> answer;
        waitFor("an answer", [&] {
            answer.emplace(question());
            return true;
        });
        return *std::move(answer);
    }

private:
    class Watch;

    xtest::TestDisplay& display;
    std::unique_ptr<Watch> watch;
};

} // namespace quorvel::x11
