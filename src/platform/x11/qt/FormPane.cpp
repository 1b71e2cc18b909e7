#include "platform/x11/qt/FormPane.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <ranges>
#include <utility>

#include "platform/x11/qt/GroupFrame.h"
#include "platform/x11/qt/ListSheetDialog.h"
#include "platform/x11/qt/PaneAlertDialog.h"
#include "platform/x11/qt/PaneButtons.h"
#include "platform/x11/qt/PaneMetrics.h"
#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/controls/PreviewWidget.h"

namespace quorvel::x11 {

namespace {

QLabel* smallText(const std::string& content, QWidget* parent)
{
    auto* const label = new QLabel(text(content), parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(paneMetrics::smallFont(label->font()));
    label->setForegroundRole(QPalette::PlaceholderText);
    label->setVisible(!content.empty());
    return label;
}

void showText(QLabel& label, const std::string& content)
{
    label.setText(text(content));
    label.setVisible(!content.empty());
}

QScrollArea* scrolled(QWidget* content, QWidget* parent)
{
    auto* const area = new QScrollArea(parent);
    area->setWidget(content);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area->setFocusPolicy(Qt::NoFocus);
    return area;
}

} // namespace

FormPane::FormPane(FormModel& model, const ToolkitHost& host, QWidget* parent)
    : QWidget(parent), model(model), host(host)
{
    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    refresh();
    changes = model.observe([this] { refreshing.schedule(); });
}

FormPane::~FormPane() = default;

void FormPane::refresh()
{
    const Form form = model.form();
    if (std::exchange(isBuildDue, false) || !hasSameShape(form, shown)) {
        build(form);
    } else {
        showForm(form);
    }
    shown = form;
    fitPreview();
    showOverlays(form);
}

// With another font other columns fit.
void FormPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        isBuildDue = true;
        refreshing.schedule();
    }
}

void FormPane::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fitPreview();
}

// The settings shall not scroll for the sake of a large preview.
void FormPane::fitPreview()
{
    if (preview != nullptr) {
        const auto* const content = area->widget();
        const int wanted =
            content->hasHeightForWidth() ? content->heightForWidth(width()) : content->sizeHint().height();
        preview->fitInto(height() - aroundPreview - wanted);
    }
}

void FormPane::build(const Form& form)
{
    const KeptFocus focus(focusRows(shown));
    delete body;
    rows.clear();
    buttons.clear();
    preview = nullptr;

    body = new QWidget(this);
    auto* const box = new QVBoxLayout(body);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(0);

    auto* content = createContent(form, Columns::several);
    const int narrowest = window()->minimumWidth() - style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    if (content->minimumSizeHint().width() > narrowest) {
        delete content;
        content = createContent(form, Columns::one);
    }
    area = scrolled(content, body);
    box->addWidget(area, 1);

    for (const auto& group : form.groups) {
        if (hasPreview(group)) {
            box->addWidget(new Separator(body)); // what scrolls ends there
            auto* const line = new QHBoxLayout();
            line->setContentsMargins(paneMetrics::margin, paneMetrics::titleSpacing, paneMetrics::margin, 0);
            line->addWidget(createGroup(group, body));
            box->addLayout(line);
        }
    }
    box->addWidget(createFoot(form));
    layout()->addWidget(body);
    showForm(form); // which enables what may have the keyboard
    if (preview != nullptr) {
        // Later the layouts would remember another size of the preview than the one that it has got in the meantime.
        aroundPreview = body->sizeHint().height() - area->sizeHint().height() - preview->sizeHint().height();
    }
    body->show();
    if (auto* const control = focus.restore(focusRows(form))) {
        QTimer::singleShot(0, control, [this, control] { area->ensureWidgetVisible(control); });
    }
}

std::vector<FocusRow> FormPane::focusRows(const Form& form) const
{
    std::vector<FocusRow> all;
    for (const auto& group : form.groups) {
        for (const auto& row : group.rows) {
            all.emplace_back(row.id, std::vector<QWidget*>{rows.at(row.id).control});
        }
    }
    all.emplace_back("", std::vector<QWidget*>(buttons.begin(), buttons.end()));
    return all;
}

QWidget* FormPane::createContent(const Form& form, Columns columns)
{
    auto* const content = new QWidget(body);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(paneMetrics::margin, paneMetrics::margin, paneMetrics::margin, paneMetrics::margin);
    column->setSpacing(paneMetrics::groupSpacing);
    addGroups(form, columns, *column);
    column->addStretch(1);
    return content;
}

void FormPane::addGroups(const Form& form, Columns columns, QBoxLayout& column)
{
    if (!form.note.empty()) {
        column.addWidget(smallText(form.note, column.parentWidget()));
    }
    auto* const line = new QHBoxLayout();
    line->setSpacing(paneMetrics::columnSpacing);
    for (const auto& groups : groupColumns(form, columns)) {
        auto* const holder = new QWidget(column.parentWidget());
        auto* const box = new QVBoxLayout(holder);
        box->setContentsMargins(0, 0, 0, 0);
        box->setSpacing(paneMetrics::groupSpacing);
        for (const std::size_t group : groups) {
            box->addWidget(createGroup(form.groups[group], holder));
        }
        box->addStretch(1);
        holder->setMaximumWidth(fontMetrics().averageCharWidth() * paneMetrics::widestColumnInCharacters);
        line->addWidget(holder, 1);
    }
    column.addLayout(line);
}

QWidget* FormPane::createGroup(const FormGroup& group, QWidget* parent)
{
    auto* const whole = new QWidget(parent);
    auto* const box = new QVBoxLayout(whole);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(paneMetrics::titleSpacing);
    // A preview's group is as low as can be: whatever sets the picture up stands beside the title.
    const bool isLow = hasPreview(group);
    auto* const head = new QHBoxLayout();
    if (!group.title.empty()) {
        auto* const title = new QLabel(text(group.title), whole);
        title->setFont(paneMetrics::titleFont(title->font()));
        head->addWidget(title, 1);
    }
    box->addLayout(head);
    auto* const frame = new GroupFrame(whole);
    frame->setAccessibleName(text(group.title));
    auto* const inner = new QVBoxLayout(frame);
    inner->setContentsMargins(paneMetrics::cardMargin, paneMetrics::rowSpacing, paneMetrics::cardMargin,
                              paneMetrics::rowSpacing);
    inner->setSpacing(0);
    for (const auto& row : group.rows) {
        if (isLow && !std::holds_alternative<PreviewControl>(row.control)) {
            addRow(row, *head, whole);
            continue;
        }
        if (inner->count() > 0) {
            inner->addWidget(new Separator(frame));
        }
        addRow(row, *inner, frame);
    }
    box->addWidget(frame);
    return whole;
}

void FormPane::addRow(const FormRow& row, QBoxLayout& box, QWidget* parent)
{
    auto* const whole = new QWidget(parent);
    auto* const lines = new QVBoxLayout(whole);
    // A title has room around it of its own; what ends in a button or a help line has not.
    const int below = row.title.empty() || !row.help.empty() ? paneMetrics::rowSpacing : paneMetrics::rowSpacing / 2;
    const int above = row.title.empty() ? paneMetrics::rowSpacing : paneMetrics::rowSpacing / 2;
    lines->setContentsMargins(0, above, 0, below);
    lines->setSpacing(0);

    RowWidgets widgets;
    constexpr int heightInLines = 2;
    widgets.title = new QLabel(text(row.title), whole);
    widgets.title->setMinimumHeight(heightInLines * fontMetrics().height() - paneMetrics::rowSpacing);
    widgets.title->setTextFormat(Qt::PlainText);
    widgets.control = createControlWidget({model, host}, row, whole);
    if (std::holds_alternative<PreviewControl>(row.control)) {
        preview = static_cast<PreviewWidget*>(widgets.control);
    }
    widgets.help = smallText(row.help, whole);
    widgets.title->setBuddy(widgets.control);

    auto* const line = new QHBoxLayout();
    line->setSpacing(paneMetrics::cardMargin);
    if (row.title.empty()) {
        widgets.title->hide();
        line->addWidget(widgets.control, 0,
                        std::holds_alternative<PreviewControl>(row.control) ? Qt::AlignHCenter : Qt::AlignLeft);
    } else {
        line->addWidget(widgets.title, 1);
        line->addWidget(widgets.control, 0, Qt::AlignRight);
    }
    lines->addLayout(line);
    lines->addWidget(widgets.help);
    box.addWidget(whole);
    rows[row.id] = widgets;
}

QWidget* FormPane::createFoot(const Form& form)
{
    auto* const foot = new QWidget(body);
    auto* const line = new QHBoxLayout(foot);
    line->setContentsMargins(paneMetrics::margin, paneMetrics::groupSpacing, paneMetrics::margin,
                             paneMetrics::groupSpacing);
    for (const auto& button : form.buttons) {
        buttons.push_back(createPaneButton(button, [this](const std::string& id) { model.press(id); }, foot));
        line->addWidget(buttons.back());
    }
    line->addStretch(1);
    auto* const footnote = smallText(form.footnote, foot);
    footnote->setWordWrap(false);
    line->addWidget(footnote);
    foot->setVisible(!form.buttons.empty() || !form.footnote.empty());
    return foot;
}

void FormPane::showForm(const Form& form)
{
    for (const auto& group : form.groups) {
        for (const auto& row : group.rows) {
            const auto& widgets = rows.at(row.id);
            widgets.title->setText(text(row.title));
            widgets.title->setEnabled(row.isEnabled);
            widgets.control->showRow(row);
            showText(*widgets.help, row.help);
        }
    }
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        showPaneButton(*buttons[index], form.buttons[index]);
    }
}

void FormPane::showOverlays(const Form& form)
{
    // Keys and clicks may come faster than what is shown follows the model.
    const auto press = [this](const std::string& id) {
        if (hasOverlayControl(model.form(), id)) {
            model.press(id);
        }
    };
    const auto setText = [this](const std::string& id, const std::string& value) {
        if (hasOverlayControl(model.form(), id)) {
            model.set(id, value);
        }
    };
    if (!form.sheet) {
        delete sheet;
    } else if (sheet) {
        sheet->showSheet(*form.sheet);
    } else {
        sheet = new ListSheetDialog(*form.sheet, press, window());
        sheet->open();
    }

    if (!form.alert) {
        delete alert;
    } else if (!alert || !alert->isFor(*form.alert)) {
        delete alert;
        QWidget* const owner = sheet ? static_cast<QWidget*>(sheet) : window();
        alert = new PaneAlertDialog(*form.alert, press, setText, owner);
        alert->open();
    }
}

} // namespace quorvel::x11
