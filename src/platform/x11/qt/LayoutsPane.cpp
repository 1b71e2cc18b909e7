#include "platform/x11/qt/LayoutsPane.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <cmath>
#include <utility>

#include "platform/LayoutsPaneShape.h"
#include "platform/x11/desktop/ToolkitUi.h"
#include "platform/x11/qt/LayoutCellWidget.h"
#include "platform/x11/qt/LayoutTable.h"
#include "platform/x11/qt/PaneButtons.h"
#include "platform/x11/qt/PaneMetrics.h"
#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/SymbolLabel.h"

namespace quorvel::x11 {

namespace {

constexpr int innerSpacing = 6;
constexpr int outerSpacing = 12;

QVBoxLayout* titledColumn(const std::string& title, LayoutTable* table, QWidget* parent)
{
    constexpr int minimumTableHeight = 200;
    auto* const column = new QVBoxLayout();
    column->setSpacing(innerSpacing);
    auto* const label = new QLabel(text(title), parent);
    label->setFont(paneMetrics::titleFont(label->font()));
    label->setBuddy(table);
    table->setAccessibleName(text(title));
    table->setMinimumHeight(minimumTableHeight);
    column->addWidget(label);
    column->addWidget(table, 1);
    return column;
}

} // namespace

LayoutsPane::LayoutsPane(LayoutsPaneModel& model, const ToolkitHost& host, QWidget* parent)
    : QWidget(parent), model(model), host(host), available(createAvailableTable()), selected(createSelectedTable())
{
    constexpr int buttonWidth = 44;
    constexpr int buttonSpacing = 8;
    const auto content = model.content();
    const auto press = [this](const std::string& id) { this->model.press(id); };
    add = createPaneButton(content.add, press, this);
    remove = createPaneButton(content.remove, press, this);

    auto* const buttons = new QVBoxLayout();
    buttons->setSpacing(buttonSpacing);
    buttons->addStretch(1);
    for (auto* const button : {add, remove}) {
        button->setMinimumSize(buttonWidth, buttonWidth * 3 / 4);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);

    auto* const tables = new QHBoxLayout();
    tables->setSpacing(outerSpacing);
    tables->addLayout(titledColumn(content.availableTitle, available, this), 1);
    tables->addLayout(buttons);
    tables->addLayout(titledColumn(content.selectedTitle, selected, this), 1);
    selected->setAccessibleDescription(text(content.orderingToolTip));
    // The eye and the Tab key go from left to right.
    setTabOrder(available, add);
    setTabOrder(add, remove);
    setTabOrder(remove, selected);

    auto* const title = new QLabel(text(content.title), this);
    title->setFont(paneMetrics::headingFont(title->font()));
    auto* const tip = new QLabel(text(content.tip), this);
    tip->setWordWrap(true);
    tip->setFont(paneMetrics::smallFont(tip->font()));
    tip->setForegroundRole(QPalette::PlaceholderText);

    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(paneMetrics::margin, paneMetrics::margin, paneMetrics::margin, paneMetrics::groupSpacing);
    box->setSpacing(outerSpacing);
    box->addWidget(title);
    box->addLayout(tables, 1);
    box->addWidget(tip);

    refresh();
    changes = model.observe([this] { refreshing.schedule(); });
}

LayoutsPane::~LayoutsPane() = default;

LayoutTable* LayoutsPane::createAvailableTable()
{
    return new LayoutTable({
                               .select = [this](const TableSelection& rows) { model.selectAvailable(rows); },
                               .click =
                                   [this](std::size_t row) {
                                       if (row < shown.available.size() &&
                                           std::holds_alternative<LayoutSectionHeader>(shown.available[row].content)) {
                                           model.clickHeader(row);
                                       }
                                   },
                               .activate = [this](std::size_t row) { model.doubleClickAvailable(row); },
                               .remove = {},
                               .move = {},
                           },
                           this);
}

LayoutTable* LayoutsPane::createSelectedTable()
{
    auto* const table =
        new LayoutTable({
                            .select = [this](const TableSelection& rows) { model.selectSelected(rows); },
                            .click = {},
                            .activate = [this](std::size_t row) { model.doubleClickSelected(row); },
                            .remove = [this] { model.press(shown.remove.id); },
                            .move = [this](LayoutsPaneModel::RowMove move) { model.moveSelected(move); },
                        },
                        this);
    table->enableDragging({
        .type = std::string(model.dragType()),
        .item = [this](std::size_t row) { return model.dragItem(row); },
        .accepts = [this](LayoutsPaneModel::DragSource source) { return model.acceptsDrop(source); },
        .drop = [this](LayoutsPaneModel::DragSource source, const std::vector<std::string>& items,
                       std::size_t beforeRow) { return model.drop(source, items, beforeRow); },
    });
    return table;
}

void LayoutsPane::refresh()
{
    const auto content = model.content();
    const auto changes = changesBetween(shown, content);
    if (changes.hasOtherAvailableRows) {
        showAvailable(content);
    }
    if (changes.selected == SelectedRowsChange::rows) {
        showSelected(content);
    } else if (changes.selected == SelectedRowsChange::digits) {
        showDigits(content.selected);
    }
    available->selectRows(content.availableSelection);
    selected->selectRows(content.selectedSelection);
    showPaneButton(*add, content.add);
    showPaneButton(*remove, content.remove);
    shown = content;
}

void LayoutsPane::showAvailable(const LayoutsPaneContent& content)
{
    std::vector<LayoutTable::Row> rows;
    for (const auto& row : content.available) {
        const auto height = static_cast<int>(std::ceil(row.height));
        if (const auto* const header = std::get_if<LayoutSectionHeader>(&row.content)) {
            rows.push_back({createHeader(*header), height, false, text(header->title)});
        } else {
            const auto& cell = std::get<LayoutCell>(row.content);
            rows.push_back({new LayoutCellWidget(cell, host.textLayouts, available), height, true, text(cell.name)});
        }
    }
    available->setRows(rows);
}

void LayoutsPane::showSelected(const LayoutsPaneContent& content)
{
    std::vector<LayoutTable::Row> rows;
    digitFields.clear();
    for (std::size_t index = 0; index < content.selected.size(); ++index) {
        const auto& row = content.selected[index];
        auto* const widget = new LayoutCellWidget(row.cell, host.textLayouts, selected);
        widget->setToolTip(asMarkup(row.cell.name + "\n" + content.orderingToolTip));
        digitFields.push_back(
            widget->addDigitField({.digit = text(row.digit),
                                   .accessibleName = text(row.digitAccessibleName),
                                   .toolTip = text(content.digitToolTip)},
                                  [this, id = row.cell.layoutID](const QString& digit) { endEditing(id, digit); }));
        rows.push_back({widget, static_cast<int>(std::ceil(row.height)), true, text(row.cell.name)});
    }
    selected->setRows(rows);
    QWidget* last = selected;
    for (auto* const field : digitFields) {
        setTabOrder(last, field); // new widgets come after everything else in the window
        last = field;
    }
}

// In the fields that are there, so that the one with the keyboard keeps it, and what is selected in it: the next key
// has to replace that.
void LayoutsPane::showDigits(const std::vector<SelectedLayoutRow>& rows)
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        auto& field = *digitFields[index];
        const auto digit = text(rows[index].digit);
        if (field.isModified() || field.text() == digit) {
            continue;
        }
        const bool wasSelected = field.hasSelectedText();
        field.setText(digit);
        if (wasSelected) {
            field.selectAll();
        }
    }
}

QWidget* LayoutsPane::createHeader(const LayoutSectionHeader& header)
{
    auto* const whole = new QWidget(available);
    whole->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const line = new QHBoxLayout(whole);
    line->setContentsMargins(innerSpacing, 0, innerSpacing, 0);
    auto* const arrow = new SymbolLabel(fontMetrics().height() * 3 / 4, QPalette::Text, whole);
    arrow->showSymbol(header.isCollapsed ? "chevron.right" : "chevron.down");
    auto* const title = new QLabel(text(header.title), whole);
    title->setFont(paneMetrics::titleFont(paneMetrics::smallFont(title->font())));
    line->addWidget(arrow);
    line->addWidget(title, 1);
    return whole;
}

// A field that goes, since the order has changed, ends its editing, too: by then its row may be another layout's.
void LayoutsPane::endEditing(const std::string& layoutID, const QString& digit)
{
    const auto kept = text(endEditingDigit(model, layoutID, utf8(digit)));
    const auto content = model.content();
    for (std::size_t index = 0; index < content.selected.size() && index < digitFields.size(); ++index) {
        if (content.selected[index].cell.layoutID == layoutID) {
            digitFields[index]->setText(kept);
        }
    }
}

} // namespace quorvel::x11
