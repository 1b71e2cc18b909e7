#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <variant>

#include "base/Color.h"
#include "base/Subscription.h"
#include "platform/Form.h"

namespace quorvel {

// What a control sends; the type that each control names (Form.h, PaneAlert.h).
using ControlValue = std::variant<bool, std::int64_t, double, Color, std::string, StoredValue>;

// The life behind a form: what its controls do. Main thread only.
class FormModel {
public:
    FormModel() = default;
    FormModel(const FormModel&) = delete;
    FormModel& operator=(const FormModel&) = delete;
    virtual ~FormModel() = default;

    // As things stand now.
    virtual Form form() const = 0;

    // Calls `changed` after form() has changed, until the token goes; also from inside set() and press(). Between two
    // calls rows may have come or gone; ids keep their meaning.
    virtual Subscription observe(std::function<void()> changed) = 0;

    // The user has given the control or text field of that id another value. An id or a type that the form does not
    // have is a fatal error.
    virtual void set(std::string_view id, const ControlValue& value) = 0;

    // The user has pressed the button of that id: of the form, its sheet or its alert. An id that the form does not
    // have is a fatal error.
    virtual void press(std::string_view id) = 0;
};

} // namespace quorvel
