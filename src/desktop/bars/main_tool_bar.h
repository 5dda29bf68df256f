#pragma once

#include "desktop/bars/entry_tool_bar.h"

class QLineEdit;

namespace ruvenmark {

// tbToolBar: the buttons that the logic names, and the position under the pointer.
class MainToolBar final : public EntryToolBar {
    Q_OBJECT

public:
    MainToolBar(MainWindow& main, const IconSet& icons, const Runner& run, QWidget* parent = nullptr);

    void ShowCoordinates(const QString& text);

signals:
    void CoordinatesClicked();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_coordinates;
};

} // namespace ruvenmark
