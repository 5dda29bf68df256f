#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>
#include <utility>
#include <vector>

class QBoxLayout;
class QLabel;

namespace ruvenmark {

// A quiet panel at the top of the map: one line, and a few things that can be done about it, beside each other
// or, on a narrow map, below.
class MapHint final : public QFrame {
public:
    using Actions = std::vector<std::pair<QString, std::function<void()>>>;

    explicit MapHint(QWidget& map); // Its parent, on which it stands.

    // Another line replaces the one that shows. What was chosen takes the panel away, unless it shows anew by then.
    void Show(const QString& text, const Actions& actions);
    void HideAfter(int milliseconds);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PlaceIt();

    QLabel* m_text;
    QBoxLayout* m_row;
    std::vector<QWidget*> m_buttons;
    QTimer m_hideTimer;
};

} // namespace ruvenmark
