#pragma once

#include <QTreeView>

namespace ruvenmark {

class RowList;
class RowModel;

// A RowList on the screen, with its columns under headers. What is selected here is selected there.
class RowListView final : public QTreeView {
    Q_OBJECT

public:
    RowListView(RowList& list, RowModel& model, QWidget* parent = nullptr);

    void reset() override;
    // The column that takes the room that the others leave, but never less than it has now.
    void SetMainColumn(int column);

signals:
    void MenuWanted(QPoint place); // Where it belongs, on the screen.
    void OpenWanted();             // A double click on a row, or Enter.
    void ReplyWanted();            // F9.
    void DeleteWanted();
    void Left(); // The operator went elsewhere in the window.

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void SortBy(int column);
    void ShowSelection();
    void FitMainColumn();
    void Copy() const;

    RowList& m_list;
    RowModel& m_model;
    int m_mainColumn = -1, m_leastWidth = 0;
};

} // namespace ruvenmark
