#include "platform/x11/qt/LayoutTable.h"

#include <QDataStream>
#include <QDrag>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "platform/x11/qt/QtText.h"

namespace quorvel::x11 {

LayoutTable::LayoutTable(Actions actions, QWidget* parent) : QListWidget(parent), actions(std::move(actions))
{
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    connect(this, &QListWidget::itemSelectionChanged, this, [this] { this->actions.select(selectedRows()); });
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
        if (this->actions.click) {
            this->actions.click(static_cast<std::size_t>(row(item)));
        }
    });
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { this->actions.activate(static_cast<std::size_t>(row(item))); });
}

void LayoutTable::enableDragging(Dragging newDragging)
{
    dragging = std::move(newDragging);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::MoveAction);
}

void LayoutTable::setRows(const std::vector<Row>& rows)
{
    const QSignalBlocker quiet(this);
    const auto replaced = selectedRows();
    const auto current = std::ranges::find(replaced, static_cast<std::size_t>(std::max(currentRow(), 0)));
    currentInSelection = current == replaced.end() ? 0 : static_cast<std::size_t>(current - replaced.begin());
    clear();
    for (const auto& row : rows) {
        auto* const item = new QListWidgetItem(this);
        item->setSizeHint(QSize(0, row.height));
        item->setData(Qt::AccessibleTextRole, row.name);
        // Enabled even where it cannot be selected, so that it can be clicked.
        item->setFlags(Qt::ItemIsEnabled | (row.isSelectable ? Qt::ItemIsSelectable : Qt::NoItemFlags) |
                       (dragging.type.empty() ? Qt::NoItemFlags : Qt::ItemIsDragEnabled));
        setItemWidget(item, row.widget);
    }
}

void LayoutTable::selectRows(const TableSelection& rows)
{
    if (rows == selectedRows()) {
        return; // the current row stays where the person has put it
    }
    const QSignalBlocker quiet(this);
    for (int index = 0; index < count(); ++index) {
        item(index)->setSelected(std::ranges::binary_search(rows, static_cast<std::size_t>(index)));
    }
    if (!rows.empty()) {
        const auto current = rows[std::min(currentInSelection, rows.size() - 1)];
        setCurrentRow(static_cast<int>(current), QItemSelectionModel::NoUpdate);
    }
    viewport()->update();
}

void LayoutTable::selectionChanged(const QItemSelection& chosen, const QItemSelection& left)
{
    QListWidget::selectionChanged(chosen, left);
    for (int index = 0; index < count(); ++index) {
        QPalette colors; // its parent's
        if (item(index)->isSelected()) {
            colors.setColor(QPalette::WindowText, palette().color(QPalette::HighlightedText));
        }
        if (auto* const widget = itemWidget(item(index))) {
            widget->setPalette(colors);
        }
    }
}

TableSelection LayoutTable::selectedRows() const
{
    TableSelection rows;
    for (int index = 0; index < count(); ++index) {
        if (item(index)->isSelected()) {
            rows.push_back(static_cast<std::size_t>(index));
        }
    }
    return rows;
}

QStringList LayoutTable::mimeTypes() const
{
    return {text(dragging.type)};
}

QMimeData* LayoutTable::mimeData(const QList<QListWidgetItem*>& items) const
{
    QList<int> rows;
    for (auto* const item : items) {
        rows.append(row(item));
    }
    std::ranges::sort(rows);
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    for (const int dragged : rows) {
        stream << text(dragging.item(static_cast<std::size_t>(dragged)));
    }
    auto* const data = new QMimeData();
    data->setData(text(dragging.type), bytes);
    return data;
}

// A view by itself knows nothing of the widgets in its rows.
QPixmap LayoutTable::pictureOf(const QList<QListWidgetItem*>& items) const
{
    constexpr int widest = 260;
    constexpr int mostRows = 4;
    const int width = std::min(widest, viewport()->width());
    const auto shownRows = items.first(std::min<qsizetype>(items.size(), mostRows));
    int height = 0;
    for (auto* const item : shownRows) {
        height += visualItemRect(item).height();
    }
    QPixmap picture(QSize(width, height) * devicePixelRatioF());
    picture.setDevicePixelRatio(devicePixelRatioF());
    picture.fill(palette().color(QPalette::Highlight));
    QPainter painter(&picture);
    int top = 0;
    for (auto* const item : shownRows) {
        itemWidget(item)->render(&painter, QPoint(0, top), QRegion(0, 0, width, visualItemRect(item).height()),
                                 QWidget::DrawChildren);
        top += visualItemRect(item).height();
    }
    return picture;
}

void LayoutTable::startDrag(Qt::DropActions supported)
{
    constexpr QPoint besideThePointer(-16, -12); // where the rows to drop between stay in sight
    auto items = selectedItems();
    std::ranges::sort(items, {}, [this](const QListWidgetItem* item) { return row(item); });
    if (!items.isEmpty()) {
        auto* const drag = new QDrag(this);
        drag->setMimeData(mimeData(items));
        drag->setPixmap(pictureOf(items));
        drag->setHotSpot(besideThePointer);
        drag->exec(supported, Qt::MoveAction);
    }
}

LayoutsPaneModel::DragSource LayoutTable::sourceOf(const QDropEvent& event) const
{
    return event.source() == this ? LayoutsPaneModel::DragSource::selectedTable
                                  : LayoutsPaneModel::DragSource::elsewhere;
}

void LayoutTable::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasFormat(text(dragging.type)) && dragging.accepts(sourceOf(*event))) {
        QListWidget::dragEnterEvent(event);
        event->acceptProposedAction();
    }
}

void LayoutTable::dragMoveEvent(QDragMoveEvent* event)
{
    QListWidget::dragMoveEvent(event);
    if (event->mimeData()->hasFormat(text(dragging.type)) && dragging.accepts(sourceOf(*event))) {
        event->setDropAction(Qt::MoveAction);
        event->accept();
    }
}

void LayoutTable::dropEvent(QDropEvent* event)
{
    std::vector<std::string> items;
    QDataStream stream(event->mimeData()->data(text(dragging.type)));
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        QString dragged;
        stream >> dragged;
        items.push_back(utf8(dragged));
    }
    const bool isDone = dragging.drop(sourceOf(*event), items, rowBefore(event->position().toPoint()));
    // A copy, so that the view does not take away what the model has put elsewhere.
    event->setDropAction(isDone ? Qt::CopyAction : Qt::IgnoreAction);
    event->accept();
    setState(QAbstractItemView::NoState);
    viewport()->update();
}

std::size_t LayoutTable::rowBefore(const QPoint& position) const
{
    const auto* const under = itemAt(position);
    if (under == nullptr) {
        return static_cast<std::size_t>(count());
    }
    const bool isLowerHalf = position.y() > visualItemRect(under).center().y();
    return static_cast<std::size_t>(row(under)) + (isLowerHalf ? 1 : 0);
}

void LayoutTable::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && currentRow() >= 0) {
        actions.activate(static_cast<std::size_t>(currentRow()));
    } else if (event->key() == Qt::Key_Space && actions.click && currentRow() >= 0 &&
               !(currentItem()->flags() & Qt::ItemIsSelectable)) {
        actions.click(static_cast<std::size_t>(currentRow()));
    } else if (event->key() == Qt::Key_Delete && actions.remove) {
        actions.remove();
    } else if (!moveByKey(*event)) {
        QListWidget::keyPressEvent(event);
    }
}

// Not where the key comes from a field in a row, which may be another one than those selected.
bool LayoutTable::moveByKey(const QKeyEvent& event)
{
    const bool isUp = event.key() == Qt::Key_Up;
    if (!actions.move || !hasFocus() || !event.modifiers().testFlag(Qt::AltModifier) ||
        (!isUp && event.key() != Qt::Key_Down)) {
        return false;
    }
    actions.move(isUp ? LayoutsPaneModel::RowMove::up : LayoutsPaneModel::RowMove::down);
    return true;
}

} // namespace quorvel::x11
