#pragma once

#include <QListWidget>
#include <functional>
#include <string>
#include <vector>

#include "platform/LayoutsPaneModel.h"

namespace quorvel::x11 {

// A list of rows with widgets of their own, which tells what the user does with its rows. Where it has a drag type, its
// rows can be dragged to other places in it, several at a time.
class LayoutTable final : public QListWidget {
public:
    struct Actions {
        std::function<void(const TableSelection&)> select;
        std::function<void(std::size_t row)> click;
        std::function<void(std::size_t row)> activate;       // a double-click, or Return
        std::function<void()> remove;                        // Delete
        std::function<void(LayoutsPaneModel::RowMove)> move; // Alt and an arrow key
    };

    struct Dragging {
        std::string type;
        std::function<std::string(std::size_t row)> item;
        std::function<bool(LayoutsPaneModel::DragSource source)> accepts;
        std::function<bool(LayoutsPaneModel::DragSource source, const std::vector<std::string>& items,
                           std::size_t beforeRow)>
            drop;
    };

    LayoutTable(Actions actions, QWidget* parent);

    void enableDragging(Dragging dragging);

    // Puts rows in place of those there are; the table owns the widgets.
    struct Row {
        QWidget* widget = nullptr;
        int height = 0;
        bool isSelectable = true;
        QString name; // for screen readers and typing ahead
    };
    void setRows(const std::vector<Row>& rows);
    void selectRows(const TableSelection& rows);

protected:
    void selectionChanged(const QItemSelection& chosen, const QItemSelection& left) override;
    void startDrag(Qt::DropActions supported) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QList<QListWidgetItem*>& items) const override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QPixmap pictureOf(const QList<QListWidgetItem*>& items) const;
    LayoutsPaneModel::DragSource sourceOf(const QDropEvent& event) const;
    std::size_t rowBefore(const QPoint& position) const;
    TableSelection selectedRows() const;
    bool moveByKey(const QKeyEvent& event);

    Actions actions;
    Dragging dragging;
    std::size_t currentInSelection = 0; // which of the selected rows was the current one, before they were replaced
};

} // namespace quorvel::x11
