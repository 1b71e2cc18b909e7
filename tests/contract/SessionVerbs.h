#pragma once

#include <string_view>

#include "base/Geometry.h"

namespace quorvel {

class Updater;

namespace contract {

enum class AlertAnswer { defaultButton, close };

// What a person does to the windows that this program's shell shows, known by their titles, and to this program in the
// settings of the session.
class SessionVerbs {
public:
    SessionVerbs() = default;
    SessionVerbs(const SessionVerbs&) = delete;
    SessionVerbs& operator=(const SessionVerbs&) = delete;
    virtual ~SessionVerbs() = default;

    virtual bool isShown(std::string_view title) = 0;
    virtual Size contentSize(std::string_view title) = 0;
    virtual void resize(std::string_view title, const Size& contentSize) = 0;
    virtual void focusShellWindow(std::string_view title) = 0;
    virtual void closeShellWindow(std::string_view title) = 0;

    // Answers the next alert once it is there: presses its default button, or closes it without pressing any.
    virtual void answerNextAlert(AlertAnswer answer) = 0;

    virtual void removeLoginItem() = 0;

    // The updater as the next run of the program finds it; valid until the next call.
    virtual Updater& reopenedUpdater() = 0;
};

} // namespace contract
} // namespace quorvel
