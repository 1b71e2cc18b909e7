#include "platform/x11/qt/ListSheetDialog.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <utility>

#include "platform/x11/qt/FocusMarking.h"
#include "platform/x11/qt/GroupFrame.h"
#include "platform/x11/qt/PaneButtons.h"
#include "platform/x11/qt/PaneMetrics.h"
#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/SymbolLabel.h"

namespace quorvel::x11 {

namespace {

QLabel* plainLabel(const std::string& content, QWidget* parent)
{
    auto* const label = new QLabel(text(content), parent);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

ListSheetDialog::ListSheetDialog(const ListSheet& sheet, Press press, QWidget* parent)
    : QDialog(parent),
      press(std::move(press)),
      shown(sheet),
      title(plainLabel(sheet.title, this)),
      footer(plainLabel(sheet.footer, this)),
      closeButton(createPaneButton(sheet.close, this->press, this))
{
    constexpr int widthInCharacters = 78;
    constexpr int heightInLines = 24;
    setWindowModality(Qt::WindowModal);
    alwaysMarkFocus(*this);
    setWindowTitle(text(sheet.title));
    resize(fontMetrics().averageCharWidth() * widthInCharacters, fontMetrics().height() * heightInLines);
    title->setFont(paneMetrics::headingFont(title->font()));
    footer->setForegroundRole(QPalette::PlaceholderText);

    auto* const area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    list = new QWidget(area);
    new QVBoxLayout(list);
    area->setWidget(list);

    auto* const foot = new QHBoxLayout();
    foot->addWidget(footer);
    foot->addStretch(1);
    foot->addWidget(closeButton);

    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(paneMetrics::margin, paneMetrics::margin, paneMetrics::margin, paneMetrics::groupSpacing);
    box->setSpacing(paneMetrics::groupSpacing);
    box->addWidget(title);
    box->addWidget(area, 1);
    box->addLayout(foot);
    fillList(sheet);
    closeButton->setFocus();
}

void ListSheetDialog::showSheet(const ListSheet& sheet)
{
    if (sheet == std::exchange(shown, sheet)) {
        return;
    }
    setWindowTitle(text(sheet.title));
    title->setText(text(sheet.title));
    footer->setText(text(sheet.footer));
    showPaneButton(*closeButton, sheet.close);
    fillList(sheet);
}

void ListSheetDialog::reject()
{
    press(shown.close.id); // the model takes the sheet away
}

void ListSheetDialog::fillList(const ListSheet& sheet)
{
    const KeptFocus focus(focusRows());
    delete list->layout();
    qDeleteAll(list->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    auto* const box = new QVBoxLayout(list);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(paneMetrics::titleSpacing);
    if (sheet.rows.empty()) {
        box->addStretch(1);
        box->addWidget(createPlaceholder(sheet.placeholder));
    }
    rows.clear();
    for (const auto& row : sheet.rows) {
        rows.emplace_back(row.id, createRow(row));
        box->addWidget(rows.back().second);
        rows.back().second->show(); // what is hidden cannot be given the keyboard
    }
    box->addStretch(1);
    focus.restore(focusRows());
}

std::vector<FocusRow> ListSheetDialog::focusRows() const
{
    std::vector<FocusRow> all;
    all.reserve(rows.size() + 1);
    for (const auto& [id, row] : rows) {
        all.emplace_back(id, std::vector{row});
    }
    all.emplace_back("", std::vector<QWidget*>{closeButton});
    return all;
}

QWidget* ListSheetDialog::createRow(const ListSheetRow& row)
{
    auto* const frame = new GroupFrame(list);
    auto* const line = new QHBoxLayout(frame);
    line->setContentsMargins(paneMetrics::cardMargin, paneMetrics::titleSpacing, paneMetrics::cardMargin,
                             paneMetrics::titleSpacing);
    auto* const texts = new QVBoxLayout();
    texts->setSpacing(1);
    auto* const name = plainLabel(row.title, frame);
    name->setFont(paneMetrics::titleFont(name->font()));
    auto* const details = plainLabel(row.subtitle, frame);
    details->setFont(paneMetrics::smallFont(details->font()));
    details->setForegroundRole(QPalette::PlaceholderText);
    details->setVisible(!row.subtitle.empty());
    for (auto* const label : {name, details}) {
        label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        label->setToolTip(asMarkup(utf8(label->text())));
        texts->addWidget(label);
    }
    line->addLayout(texts, 1);
    for (const auto& button : row.buttons) {
        line->addWidget(createPaneButton(button, press, frame));
    }
    return frame;
}

QWidget* ListSheetDialog::createPlaceholder(const ListSheetPlaceholder& placeholder)
{
    constexpr int symbolLines = 3;
    auto* const whole = new QWidget(list);
    auto* const box = new QVBoxLayout(whole);
    auto* const symbol = new SymbolLabel(fontMetrics().height() * symbolLines, QPalette::PlaceholderText, whole);
    symbol->showSymbol(placeholder.symbol);
    auto* const heading = plainLabel(placeholder.heading, whole);
    heading->setFont(paneMetrics::titleFont(heading->font()));
    auto* const line = plainLabel(placeholder.line, whole);
    line->setForegroundRole(QPalette::PlaceholderText);
    line->setWordWrap(true);
    for (auto* const label : {static_cast<QLabel*>(symbol), heading, line}) {
        label->setAlignment(Qt::AlignCenter);
        box->addWidget(label);
    }
    return whole;
}

} // namespace quorvel::x11
