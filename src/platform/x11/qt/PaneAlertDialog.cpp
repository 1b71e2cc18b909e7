#include "platform/x11/qt/PaneAlertDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <ranges>
#include <utility>

#include "platform/FormShape.h"
#include "platform/x11/qt/FocusMarking.h"
#include "platform/x11/qt/PaneButtons.h"
#include "platform/x11/qt/PaneMetrics.h"
#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

namespace {

QLabel* wrappedLabel(const std::string& content, QWidget* parent)
{
    auto* const label = new QLabel(text(content), parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

PaneAlertDialog::PaneAlertDialog(const PaneAlert& alert, Press press, const SetText& setText, QWidget* parent)
    : QDialog(parent), press(std::move(press)), shown(alert)
{
    constexpr int widthInCharacters = 52;
    setWindowModality(Qt::WindowModal);
    alwaysMarkFocus(*this);
    setWindowTitle(text(alert.title));
    setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);

    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(paneMetrics::margin, paneMetrics::margin, paneMetrics::margin, paneMetrics::groupSpacing);
    box->setSpacing(paneMetrics::groupSpacing);
    auto* const title = wrappedLabel(alert.title, this);
    title->setFont(paneMetrics::titleFont(title->font()));
    box->addWidget(title);
    if (!alert.message.empty()) {
        box->addWidget(wrappedLabel(alert.message, this));
    }
    QLineEdit* field = nullptr;
    if (alert.field) {
        field = new QLineEdit(text(alert.field->text), this);
        field->setPlaceholderText(text(alert.field->placeholder));
        field->setAccessibleName(text(alert.field->placeholder));
        field->selectAll();
        connect(field, &QLineEdit::textEdited, this,
                [setText, id = alert.field->id](const QString& edited) { setText(id, utf8(edited)); });
        box->addWidget(field);
    }
    auto* const line = new QHBoxLayout();
    line->addStretch(1);
    // The first button stands at the right, where the eye ends.
    QWidget* first = field;
    for (const auto& button : alert.buttons | std::views::reverse) {
        auto* const widget = createPaneButton(button, this->press, this);
        line->addWidget(widget);
        // Where nothing is to be typed, a press without thinking does no harm.
        if (first == nullptr && button.role == ButtonRole::cancel) {
            first = widget;
        }
    }
    box->addLayout(line);
    if (first != nullptr) {
        first->setFocus();
    }
}

bool PaneAlertDialog::isFor(const PaneAlert& alert) const
{
    return isSameQuestion(alert, shown);
}

void PaneAlertDialog::reject()
{
    const auto canceling = std::ranges::find(shown.buttons, ButtonRole::cancel, &PaneButton::role);
    if (canceling != shown.buttons.end()) {
        press(canceling->id); // the model takes the alert away
    }
}

} // namespace quorvel::x11
