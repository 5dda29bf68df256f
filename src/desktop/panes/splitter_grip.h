#pragma once

#include <QWidget>

namespace ruvenmark {

// imgSplitter: the grip between the panes, for the mouse and for the keys. It moves nothing itself; places are those of
// its left edge in its parent, also beyond where it may stand.
class SplitterGrip final : public QWidget {
    Q_OBJECT

public:
    explicit SplitterGrip(QWidget* parent);

signals:
    void Dragged(int left);
    void Dropped(int left);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    int LeftOf(const QMouseEvent& event) const;

    int m_grabbedAt = 0; // From the grip's left edge.
    bool m_bDragging = false;
};

} // namespace ruvenmark
