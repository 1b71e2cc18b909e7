#include "platform/macos/preferences/FormPane.h"

#include <algorithm>
#include <ranges>
#include <utility>

#include "platform/macos/preferences/Grounds.h"
#include "platform/macos/preferences/ListSheetWindow.h"
#include "platform/macos/preferences/PaneAlertSheet.h"
#include "platform/macos/preferences/PaneMetrics.h"
#include "platform/macos/preferences/ScrollingViews.h"

namespace quorvel::macos {

FormPane::FormPane(FormModel& model, MainQueue& mainQueue, double narrowest)
    : model(model),
      narrowest(narrowest),
      box([this] { layOut(); }),
      scroll(createScrollView(columnsBox.view())),
      separator(createSeparator()),
      note(createNote({})),
      footnote(createNote({})),
      refreshing(mainQueue, [this] { refresh(); })
{
    for (NSView* const part : {static_cast<NSView*>(scroll.get()), static_cast<NSView*>(separator.get()),
                               static_cast<NSView*>(footnote.get())}) {
        box.add(part);
    }
    columnsBox.add(note.get());
    refresh();
    changes = model.observe([this] { refreshing.schedule(); });
}

FormPane::~FormPane() = default;

void FormPane::refresh()
{
    const Form form = model.form();
    if (std::exchange(isBuildDue, false) || !hasSameShape(form, shown)) {
        build(form);
    }
    showForm(form);
    shown = form;
    showOverlays(form);
}

void FormPane::build(const Form& form)
{
    const KeptPlace kept = placeOfKeyboard();
    clear();
    for (const auto& group : form.groups) {
        groups.push_back(std::make_unique<FormGroupView>(model, group));
        (hasPreview(group) ? box : columnsBox).add(groups.back()->view());
        if (hasPreview(group)) {
            previews.push_back(groups.size() - 1);
        }
    }
    columns = groupColumns(form, Columns::several);
    if (!fits(columns)) {
        columns = groupColumns(form, Columns::one);
    }
    for (const auto& button : form.buttons) {
        buttons.push_back(std::make_unique<PaneButtonView>(button, [this](const std::string& id) { model.press(id); }));
        box.add(buttons.back()->view());
    }
    const auto rows = keyRows();
    if (const auto place = kept.among(focusable(rows))) {
        [[box.view() window] makeFirstResponder:rows[place->row].views[place->control]];
    }
}

void FormPane::clear()
{
    for (const auto& group : groups) {
        [group->view() removeFromSuperview];
    }
    for (const auto& button : buttons) {
        [button->view() removeFromSuperview];
    }
    groups.clear();
    buttons.clear();
    previews.clear();
}

bool FormPane::fits(const std::vector<Groups>& candidate) const
{
    double width = 2.0 * paneMetrics::margin - paneMetrics::columnSpacing;
    double widest = 0.0;
    for (const auto& column : candidate) {
        for (const std::size_t group : column) {
            widest = std::max(widest, groups[group]->narrowest());
        }
        width += paneMetrics::columnSpacing;
    }
    return width + widest * static_cast<double>(candidate.size()) <= narrowest;
}

std::vector<FormPane::KeyRow> FormPane::keyRows() const
{
    std::vector<KeyRow> rows;
    for (const auto& group : groups) {
        for (const auto& row : group->allRows()) {
            rows.push_back({row->id(), row->keyViews()});
        }
    }
    rows.emplace_back(); // the foot
    for (const auto& button : buttons) {
        rows.back().views.push_back(button->view());
    }
    return rows;
}

KeptPlace FormPane::placeOfKeyboard() const
{
    const id first = [[box.view() window] firstResponder];
    if (![first isKindOfClass:[NSView class]]) {
        return {};
    }
    const auto rows = keyRows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
        for (std::size_t control = 0; control < rows[row].views.size(); ++control) {
            if ([static_cast<NSView*>(first) isDescendantOf:rows[row].views[control]]) {
                return KeptPlace(focusable(rows), {row, control});
            }
        }
    }
    return {};
}

std::vector<FocusableRow> FormPane::focusable(const std::vector<KeyRow>& rows)
{
    std::vector<FocusableRow> result;
    for (const auto& row : rows) {
        result.push_back({row.id, {}});
        for (NSControl* const view : row.views) {
            result.back().isEnabled.push_back([view isEnabled] != NO);
        }
    }
    return result;
}

void FormPane::showForm(const Form& form)
{
    showText(note, form.note);
    showText(footnote, form.footnote);
    for (std::size_t index = 0; index < groups.size(); ++index) {
        groups[index]->show(form.groups[index]);
    }
    for (std::size_t index = 0; index < buttons.size(); ++index) {
        buttons[index]->show(form.buttons[index]);
    }
    layOut();
}

void FormPane::showOverlays(const Form& form)
{
    NSWindow* const window = [box.view() window];
    // Keys and clicks may come faster than what is shown follows the model.
    const auto press = [this](const std::string& id) {
        if (hasOverlayControl(model.form(), id)) {
            model.press(id);
        }
    };
    const auto setText = [this](const std::string& id, const std::string& text) {
        if (hasOverlayControl(model.form(), id)) {
            model.set(id, text);
        }
    };
    if (!form.alert || (alert && !alert->isFor(*form.alert))) {
        alert.reset(); // before the sheet under it
    }
    if (!form.sheet) {
        sheet.reset();
    } else if (sheet) {
        sheet->show(*form.sheet);
    } else if (window != nil) {
        sheet = std::make_unique<ListSheetWindow>(*form.sheet, press, window);
    }
    if (form.alert && !alert && window != nil) {
        alert = std::make_unique<PaneAlertSheet>(*form.alert, PaneAlertSheet::Actions{press, setText},
                                                 sheet ? sheet->nsWindow() : window);
    }
}

// From the bottom up: buttons and footnote, groups with previews, and over them what scrolls.
void FormPane::layOut() const
{
    const NSSize size = box.size();
    if (size.width < narrowest) {
        return; // not in its window yet
    }
    double bottom = layOutFoot(size.height);
    bottom = layOutPreviews(bottom);
    [separator.get() setHidden:previews.empty()];
    [separator.get() setFrame:NSMakeRect(0.0, bottom, size.width, 1.0)];
    [scroll.get() setFrame:NSMakeRect(0.0, 0.0, size.width, std::max(0.0, bottom))];
    layOutColumns();
    if (columnsBox.size().width != [scroll.get() contentSize].width) {
        layOutColumns(); // a scroller has come or gone
    }
}

double FormPane::layOutFoot(double bottom) const
{
    if (buttons.empty() && [footnote.get() isHidden]) {
        return bottom;
    }
    double height = heightOfNote(footnote, box.size().width / 2.0);
    for (const auto& button : buttons) {
        height = std::max(height, static_cast<double>([button->view() frame].size.height));
    }
    const double top = bottom - paneMetrics::groupSpacing - height;
    double x = paneMetrics::margin;
    for (const auto& button : buttons) {
        [button->view() setFrameOrigin:NSMakePoint(x, top)];
        x += [button->view() frame].size.width + paneMetrics::partSpacing;
    }
    const double room = std::max(0.0, box.size().width - paneMetrics::margin - x);
    const double noteHeight = heightOfNote(footnote, room);
    [footnote.get() setFrame:NSMakeRect(x, top + (height - noteHeight) / 2.0, room, noteHeight)];
    return top - paneMetrics::partSpacing;
}

double FormPane::layOutPreviews(double bottom) const
{
    const double width = box.size().width - 2.0 * paneMetrics::margin;
    for (const auto index : previews | std::views::reverse) {
        const double height = groups[index]->height(width);
        bottom -= height;
        groups[index]->setFrame(NSMakeRect(paneMetrics::margin, bottom, width, height));
        bottom -= paneMetrics::partSpacing;
    }
    return bottom;
}

void FormPane::layOutColumns() const
{
    const double whole = [scroll.get() contentSize].width;
    const double inside = whole - 2.0 * paneMetrics::margin;
    double top = paneMetrics::margin;
    if (![note.get() isHidden]) {
        const double height = heightOfNote(note, inside);
        [note.get() setFrame:NSMakeRect(paneMetrics::margin, top, inside, height)];
        top += height + paneMetrics::groupSpacing;
    }
    const auto count = static_cast<double>(columns.size());
    const double share = (inside - paneMetrics::columnSpacing * (count - 1.0)) / count;
    const double width = std::clamp(share, 0.0, paneMetrics::widestColumn);
    double x = (whole - width * count - paneMetrics::columnSpacing * (count - 1.0)) / 2.0;
    double lowest = top;
    for (const auto& column : columns) {
        double y = top;
        for (const std::size_t group : column) {
            const double height = groups[group]->height(width);
            groups[group]->setFrame(NSMakeRect(x, y, width, height));
            y += height + paneMetrics::groupSpacing;
        }
        lowest = std::max(lowest, y);
        x += width + paneMetrics::columnSpacing;
    }
    [columnsBox.view()
        setFrameSize:NSMakeSize(whole, std::max(lowest, static_cast<double>([scroll.get() contentSize].height)))];
}

} // namespace quorvel::macos
