#include "platform/macos/preferences/LayoutsPane.h"

#include <algorithm>
#include <utility>

#include "platform/LayoutsPaneShape.h"
#include "platform/macos/Strings.h"
#include "platform/macos/preferences/LayoutCellView.h"
#include "platform/macos/preferences/PaneMetrics.h"

namespace quorvel::macos {

namespace {

constexpr double outerSpacing = 12.0;
constexpr double innerSpacing = 6.0;
constexpr double buttonWidth = 44.0;
constexpr double buttonSpacing = 8.0;
constexpr double minimumTableHeight = 200.0;

} // namespace

LayoutsPane::LayoutsPane(LayoutsPaneModel& model, MainQueue& mainQueue) : LayoutsPane(model, mainQueue, model.content())
{}

LayoutsPane::LayoutsPane(LayoutsPaneModel& model, MainQueue& mainQueue, const LayoutsPaneContent& content)
    : model(model),
      box([this] { layOut(); }),
      title(createHeading(content.title)),
      availableTitle(createTitle(content.availableTitle)),
      selectedTitle(createTitle(content.selectedTitle)),
      tip(createNote(content.tip)),
      add(content.add, [this](const std::string& id) { this->model.press(id); }),
      remove(content.remove, [this](const std::string& id) { this->model.press(id); }),
      available(content.availableTitle, availableActions()),
      selected(content.selectedTitle, selectedActions()),
      refreshing(mainQueue, [this] { refresh(); })
{
    for (NSView* const part :
         {static_cast<NSView*>(title.get()), static_cast<NSView*>(availableTitle.get()), available.view(),
          static_cast<NSView*>(add.view()), static_cast<NSView*>(remove.view()),
          static_cast<NSView*>(selectedTitle.get()), selected.view(), static_cast<NSView*>(tip.get())}) {
        box.add(part);
    }
    selected.enableDragging(model);
    [selected.tableView() setAccessibilityHelp:nsString(content.orderingToolTip)];
    refresh();
    changes = model.observe([this] { refreshing.schedule(); });
}

LayoutTable::Actions LayoutsPane::availableActions()
{
    return {.select = [this](const TableSelection& rows) { model.selectAvailable(rows); },
            .activate = [this](std::size_t row) { model.doubleClickAvailable(row); },
            .remove = {},
            .move = {}};
}

LayoutTable::Actions LayoutsPane::selectedActions()
{
    return {.select = [this](const TableSelection& rows) { model.selectSelected(rows); },
            .activate = [this](std::size_t row) { model.doubleClickSelected(row); },
            .remove = [this] { model.press(shown.remove.id); },
            .move = [this](LayoutsPaneModel::RowMove move) { model.moveSelected(move); }};
}

void LayoutsPane::refresh()
{
    if (changesBetween(shown, model.content()).selected == SelectedRowsChange::rows) {
        finishEditing();
    }
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
    available.selectRows(content.availableSelection);
    selected.selectRows(content.selectedSelection);
    add.show(content.add);
    remove.show(content.remove);
    shown = content;
    layOut();
}

void LayoutsPane::showAvailable(const LayoutsPaneContent& content)
{
    std::vector<LayoutTable::Row> rows;
    std::vector<std::unique_ptr<SectionHeaderView>> newHeaders;
    for (std::size_t index = 0; index < content.available.size(); ++index) {
        const auto& row = content.available[index];
        if (const auto* const header = std::get_if<LayoutSectionHeader>(&row.content)) {
            newHeaders.push_back(
                std::make_unique<SectionHeaderView>(*header, [this, index] { model.clickHeader(index); }));
            rows.push_back({Retained<NSView*>::retain(newHeaders.back()->view()), row.height, true, header->title});
        } else {
            const auto& cell = std::get<LayoutCell>(row.content);
            rows.push_back(
                {Retained<NSView*>::retain([QuorvelLayoutCellView viewForCell:cell]), row.height, false, cell.name});
        }
    }
    available.setRows(std::move(rows));
    headers = std::move(newHeaders);
}

void LayoutsPane::showSelected(const LayoutsPaneContent& content)
{
    digitFields.clear();
    std::vector<LayoutTable::Row> rows;
    rows.reserve(content.selected.size());
    for (const auto& row : content.selected) {
        rows.push_back({createSelectedView(row, content), row.height, false, row.cell.name});
    }
    selected.setRows(std::move(rows));
}

Retained<NSView*> LayoutsPane::createSelectedView(const SelectedLayoutRow& row, const LayoutsPaneContent& content)
{
    QuorvelLayoutCellView* const cell = [QuorvelLayoutCellView viewForCell:row.cell];
    [cell setToolTip:nsString(row.cell.name + "\n" + content.orderingToolTip)];
    NSTextField* const field = [cell addDigitFieldNamed:nsString(row.digitAccessibleName)
                                                toolTip:nsString(content.digitToolTip)];
    [field setStringValue:nsString(row.digit)];
    const FieldEditing::Actions actions{
        .changed = {}, .ended = [this, id = row.cell.layoutID](const std::string& digit) { endEditing(id, digit); }};
    digitFields.push_back({Retained<NSTextField*>::retain(field), std::make_unique<FieldEditing>(field, actions)});
    return Retained<NSView*>::retain(cell);
}

// In the fields that are there, so that the one with the keyboard keeps it.
void LayoutsPane::showDigits(const std::vector<SelectedLayoutRow>& rows)
{
    for (std::size_t index = 0; index < rows.size(); ++index) {
        NSTextField* const field = digitFields[index].view.get();
        if ([field currentEditor] == nil) {
            [field setStringValue:nsString(rows[index].digit)];
        }
    }
}

// What has been typed into a field that is about to go counts.
void LayoutsPane::finishEditing() const
{
    const bool isEditing =
        std::ranges::any_of(digitFields, [](const DigitField& each) { return [each.view.get() currentEditor] != nil; });
    if (isEditing) {
        selected.takeKeyboard();
    }
}

void LayoutsPane::endEditing(const std::string& layoutID, const std::string& digit)
{
    const auto kept = endEditingDigit(model, layoutID, digit);
    for (const auto& field : digitFields) {
        if (utf8([field.view.get() identifier]) == layoutID) {
            [field.view.get() setStringValue:nsString(kept)];
        }
    }
}

void LayoutsPane::layOut() const
{
    using namespace paneMetrics;
    const NSSize size = box.size();
    const double inside = size.width - 2.0 * margin;
    if (inside <= 0.0) {
        return; // not in its window yet
    }
    const double titleHeight = [title.get() frame].size.height;
    [title.get() setFrame:NSMakeRect(margin, margin, inside, titleHeight)];
    const double tipHeight = heightOfNote(tip, inside);
    const double tipTop = size.height - groupSpacing - tipHeight;
    [tip.get() setFrame:NSMakeRect(margin, tipTop, inside, tipHeight)];

    const double width = (inside - buttonWidth - 2.0 * outerSpacing) / 2.0;
    const double right = size.width - margin - width;
    const double headerTop = margin + titleHeight + outerSpacing;
    const double headerHeight = [availableTitle.get() frame].size.height;
    [availableTitle.get() setFrame:NSMakeRect(margin, headerTop, width, headerHeight)];
    [selectedTitle.get() setFrame:NSMakeRect(right, headerTop, width, headerHeight)];
    const double top = headerTop + headerHeight + innerSpacing;
    const double height = std::max(minimumTableHeight, tipTop - outerSpacing - top);
    available.setFrame(NSMakeRect(margin, top, width, height));
    selected.setFrame(NSMakeRect(right, top, width, height));

    const double buttonHeight = [add.view() frame].size.height;
    const double x = margin + width + outerSpacing;
    const double middle = top + height / 2.0;
    [add.view() setFrame:NSMakeRect(x, middle - buttonSpacing / 2.0 - buttonHeight, buttonWidth, buttonHeight)];
    [remove.view() setFrame:NSMakeRect(x, middle + buttonSpacing / 2.0, buttonWidth, buttonHeight)];
}

} // namespace quorvel::macos
