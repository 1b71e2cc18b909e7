#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Accessibility.h"

namespace quorvel {

// What accessibility calls see of an application or a window: by itself it answers truly; it can be told to answer
// otherwise, attribute by attribute.
class SimulatedElement {
public:
    SimulatedElement() = default;
    SimulatedElement(const SimulatedElement&) = delete;
    SimulatedElement& operator=(const SimulatedElement&) = delete;
    virtual ~SimulatedElement() = default;

    // As in the journal: "application 500", "window 3".
    virtual std::string reference() const = 0;
    virtual ProcessId process() const = 0;

    void failReading(std::string_view attribute, AxError error)
    {
        readingErrors.insert_or_assign(text(attribute), error);
    }
    void failWriting(std::string_view attribute, AxError error)
    {
        writingErrors.insert_or_assign(text(attribute), error);
    }
    void failAction(std::string_view action, AxError error) { actionErrors.insert_or_assign(text(action), error); }

    // Answers `value`, of whatever type, for the attribute.
    void answer(std::string_view attribute, AxValue value)
    {
        answers.insert_or_assign(text(attribute), std::move(value));
    }

    // Ends all of the above.
    void behave();

    std::optional<AxError> readingError(std::string_view attribute) const { return find(readingErrors, attribute); }
    std::optional<AxError> writingError(std::string_view attribute) const { return find(writingErrors, attribute); }
    std::optional<AxError> actionError(std::string_view action) const { return find(actionErrors, action); }
    std::optional<AxValue> falseAnswer(std::string_view attribute) const { return find(answers, attribute); }

private:
    template <class Value>
    using Table = std::map<std::string, Value, std::less<>>;

    static std::string text(std::string_view name) { return std::string(name); }

    template <class Value>
    static std::optional<Value> find(const Table<Value>& table, std::string_view name)
    {
        const auto entry = table.find(name);
        return entry == table.end() ? std::nullopt : std::optional(entry->second);
    }

    Table<AxError> readingErrors;
    Table<AxError> writingErrors;
    Table<AxError> actionErrors;
    Table<AxValue> answers;
};

} // namespace quorvel
